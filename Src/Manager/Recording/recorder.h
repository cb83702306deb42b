#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "Manager/Recording/record_file.h"
#include "Manager/Station/observed_panel.h"
#include "Orvo/core/marvane_assistant.h"
#include "Runtime/Store/store.h"

namespace Orvo::Manager {

/// Whether a recording holds what is typed at prompts, and the events that carry it.
enum class Answers : std::uint8_t { asCancelled, inFull };

/// Writes down what host and person do to a panel, as panel script that does the same to a fresh
/// panel. The events are there as comments. What the host does while it handles an event follows
/// what the person did to raise it; so does what happens while a prompt is open.
///
/// The store's clock must be run by hand: each timer then ticks in the replay as it ticked here.
class Recorder final : public CallListener, private Runtime::InputObserver {
public:
    /// Begins with the panel fresh, and sees the person and the events by itself; the calls it must
    /// be told. Panel and store live at least as long. Throws std::system_error when the file can't
    /// be opened.
    Recorder(const std::string& file, MarvaneAssistant& panel, Runtime::Store& store,
             Answers answers);
    ~Recorder() override;
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The panel is about to be exchanged for a fresh one, and has been.
    void panelEnds();
    void panelBegins(MarvaneAssistant& panel, Runtime::Store& store);

    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member&, const Value&) override {}
    void failed(const Member& member, const Error& error) override;

private:
    void does(const Runtime::Deed& deed) override;
    void did() override;
    void answered(const std::optional<String>& answer) override;
    void raised(const Event& event, std::span<const Value> arguments);

    void write(std::string_view line);
    void writeWait();
    void put(std::string_view line);

    RecordFile file_;
    Runtime::Store* store_ = nullptr;
    Answers answers_;
    std::chrono::milliseconds time_{0};
    int deeds_ = 0;
    // Of the deed that goes on: the answers to its prompts, which the script needs to have before;
    // and the deed with all that follows.
    std::string given_;
    std::string pending_;
    Connection events_;
};

}  // namespace Orvo::Manager
