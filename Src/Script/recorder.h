#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Script/record_file.h"

namespace Orvo::Script {

/// Whether a recording holds what is typed at prompts, and the events that carry it.
enum class Answers : std::uint8_t { asCancelled, inFull };

/// Writes down what host and person do to a panel, as panel script that does the same to a fresh
/// panel. The events are there as comments. What is done in the midst of an action, because it
/// raises an event or opens a prompt, stands before it and is said to be done meanwhile. Only what
/// comes of an answer that it doesn't hold is not repeated.
///
/// The store's clock must be run by hand: each timer then ticks in the replay as it ticked here.
class Recorder final : public CallListener, private Runtime::InputObserver {
public:
    /// Begins with the panel fresh, and sees the person and the events by itself; the calls it must
    /// be told. It must be the first that hears the panel's events. Panel and store live at least
    /// as long. Throws std::system_error when the file can't be opened.
    Recorder(const std::string& file, MarvaneAssistant& panel, Runtime::Store& store,
             Answers answers);
    ~Recorder() override;
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The panel is about to be exchanged for a fresh one, and has been.
    void panelEnds();
    void panelBegins(MarvaneAssistant& panel, Runtime::Store& store);

    /// The host has set the screen's pointer.
    void pointerIsSet();

    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& result) override;
    void failed(const Member& member, const Error& error) override;

private:
    // What goes on: a call, a deed, or a tick that something may come of.
    struct Action {
        bool isWritten = true;
        std::optional<Widgets::WidgetId> movedSlider = std::nullopt;
        // For an event or a prompt.
        bool hasStopped = false;
        // A prompt of it was given what the recording doesn't hold. The replay cancels that and is
        // done with it: what else comes of it comes after it.
        bool isOver = false;
    };

    void does(const Runtime::Deed& deed) override;
    void did() override;
    void asks() override { stop(); }
    void answered(const std::optional<String>& answer) override;
    void ticks() override { actions_.push_back({.isWritten = false}); }
    void ticked() override { end(); }
    void raised(const Event& event, std::span<const Value> arguments);

    void begin(std::string_view command, std::optional<Widgets::WidgetId> movedSlider = {});
    void end();
    void stop();

    [[nodiscard]] bool isInTheMidst() const;
    void write(std::string_view command);
    void writeWait();

    RecordFile file_;
    Runtime::Store* store_ = nullptr;
    Answers answers_;
    std::chrono::milliseconds time_{0};
    std::vector<Action> actions_;
    // Events that are done with, which the script must resume from before it can go on.
    int resumptions_ = 0;
    Connection events_;
};

}  // namespace Orvo::Script
