#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/event_table.h"
#include "Orvo/store/input_observer.h"
#include "Script/panel_owner.h"
#include "Script/record_file.h"

namespace Orvo::Script {

/// Whether a recording holds what is typed at prompts, and the events that carry it.
enum class Answers : std::uint8_t { asCancelled, inFull };

/// Writes down what host and person do to a panel, as it happens, as panel script that does the
/// same to a fresh panel, which it first brings to the state of this one. The events are there as
/// comments. What is done in the midst of an action, because it raises an event or opens a prompt,
/// stands below it and is said to be done meanwhile. Only what comes of an answer that it doesn't
/// hold is not repeated.
///
/// The store's clock must be run by hand: each timer then ticks in the replay as it ticked here.
class Recorder final : private CallListener, private Runtime::InputObserver {
public:
    /// Of the owner's panels. It must be the first that hears their events, long before `start`
    /// perhaps.
    Recorder(PanelOwner& owner, Answers answers);
    Recorder(RecordFile file, PanelOwner& owner, Answers answers) : Recorder(owner, answers) {
        start(std::move(file));
    }
    ~Recorder() override;
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// While nothing is recorded, nor a handler or a prompt going on.
    void start(RecordFile file);
    void stop();
    [[nodiscard]] bool isRecording() const { return file_.has_value(); }

    /// The host has set the screen's pointer.
    void pointerIsSet();
    /// Writes down the time that has passed since.
    void writeWait();

    /// While it is recording: it may fail, and another one may take its place.
    [[nodiscard]] RecordFile& file() { return *file_; }

private:
    /// Where something stands in the script.
    enum class State : std::uint8_t {
        unwritten,  ///< a tick: part of the wait that is written once the tick raises or asks
        running,
        stopped,  ///< at an event or a prompt, for what is queued for that
        /// A prompt was given what the recording doesn't hold. The replay cancels that and is done:
        /// what else comes of it here comes after it there.
        over,
    };

    /// A call, a deed or a tick, while it lasts.
    struct Ongoing {
        State state = State::running;
        std::optional<Widgets::WidgetId> movedSlider = std::nullopt;
    };

    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& result) override;
    void failed(const Member& member, const Error& error) override;
    void does(const Runtime::Deed& deed) override;
    void did() override;
    void asks() override {
        note([this] { pause(); });
    }
    void answered(const std::optional<String>& answer) override;
    void ticks() override {
        note([this] { ongoing_.push_back({.state = State::unwritten}); });
    }
    void ticked() override { end(); }
    void raised(const Event& event, std::span<const Value> arguments);

    /// Whoever tells of something goes on, also when there is no memory to write it down.
    template <class Note>
    void note(const Note& note) {
        if (!file_) return;
        try {
            note();
        } catch (...) {
            file_->lose();
        }
    }

    void hear();
    void hearFreshPanel();
    void panelEnds();
    Runtime::Store& store() { return owner_.store(); }

    void wait();
    void begin(std::string_view command, std::optional<Widgets::WidgetId> movedSlider = {});
    void end();
    void pause();

    [[nodiscard]] bool isInTheMidst() const;
    void write(std::string_view command);
    void writeWhatASecretLeft();

    PanelOwner& owner_;
    std::optional<RecordFile> file_;
    Answers answers_;
    std::chrono::milliseconds time_{0};
    std::vector<Ongoing> ongoing_;  // each in the midst of the one before
    // How many events are done with, for whose end the script has no "resume" yet.
    int resumptions_ = 0;
    Connection renewals_;
    Connection events_;
    Connection calls_;
};

}  // namespace Orvo::Script
