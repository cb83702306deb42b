#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Manager/Host/simulated_host.h"
#include "Manager/Link/pipe_stream.h"
#include "Manager/Session/replay.h"
#include "Manager/Session/session_log.h"
#include "Manager/Station/station.h"
#include "Script/recorder.h"

namespace Orvo::Manager {

class LinkDevice;

struct SessionSettings {
    std::uint32_t seed = 1;                                 ///< the simulator's
    bool isReadOnly = false;                                ///< at first
    std::string record{};                                   ///< a file; empty: none
    Script::Existing existing = Script::Existing::refused;  ///< what has the file's name already
    Script::Answers answers = Script::Answers::asCancelled;
    std::string log{};  ///< the file of the session's log; empty: it is in memory alone
};

/// What a person wanted and couldn't have; in UTF-8.
struct Failure {
    std::string title;
    std::string text;
    std::string details;
};

/// Is told what a person should know.
class SessionObserver {
public:
    virtual ~SessionObserver() = default;
    virtual void say(const std::string& message) = 0;
    virtual void warn(const Failure& failure) = 0;
    /// A recording has stopped, and could go on in another file.
    virtual void recordingStopped(const Failure& failure) = 0;
};

/// What a person works with while the program runs: the panel, what plays its host, and what is
/// kept of it. One thing at a time plays the host: what is connected ends a replay, and a replay
/// ends a recording. Nothing else ends one.
class ManagerSession final {
public:
    /// All must live as long; `openStream` is what opens a link. Throws std::runtime_error when the
    /// session is to be recorded in a file that can't be made.
    ManagerSession(Script::PanelOwner& owner, Script::Person& person, SessionSettings settings,
                   SessionObserver& observer, OpenStream openStream = openPipe);
    ~ManagerSession();
    ManagerSession(const ManagerSession&) = delete;
    ManagerSession& operator=(const ManagerSession&) = delete;

    /// Lets time pass for the panel and for what is connected.
    void letPass(std::chrono::milliseconds time);

    /// With the seed of the settings, from the beginning.
    void connectSimulator(Simulator::PowerAtStart power = Simulator::PowerAtStart::on);
    void connectLink(const LinkAddress& address);
    void connectNothing();
    /// Each is null when it isn't what is connected.
    [[nodiscard]] SimulatedHost* simulator() const;
    [[nodiscard]] const LinkDevice* link() const;

    /// From what the panel shows on, which the file begins with. One that is there already is
    /// overwritten.
    void startRecording(const std::string& file);
    void stopRecording();
    /// Why the recording isn't whole, if so.
    std::optional<std::string> endRecording();
    [[nodiscard]] bool isRecording() const { return recorder_.isRecording() && !stopReason_; }

    /// The recording takes no more, because of its file. It waits for another one, until it is
    /// stopped, and goes on there with nothing left out; or ends there, when that would leave a
    /// gap. One that others have changed only waits for its end.
    [[nodiscard]] bool hasRecordingStopped() const { return stopReason_.has_value(); }
    void continueRecording(const std::string& file);

    /// On a fresh panel, with nothing else connected.
    void startReplay(const std::string& file);
    void stopReplay();
    [[nodiscard]] bool isReplaying() const { return replay() != nullptr; }
    /// Null when none is going on.
    [[nodiscard]] Replay* replay() const;

    /// As the person in front wants it: then no device ends it, nor does a fresh panel but for a
    /// replay's.
    void setReadOnly(bool isReadOnly);
    [[nodiscard]] bool isReadOnly() const;

    [[nodiscard]] Station& station() { return station_; }

    /// In UTF-8: every line that the message log had since the program started, what was connected,
    /// recorded and replayed, with the time before each.
    [[nodiscard]] std::string log() const { return log_.text(); }

private:
    void say(const std::string& message);
    void connect(const Station::DeviceMaker& make);
    void keepLog();
    void serveFreshPanels();
    void takeFreshPanel();
    void listenToErrors();
    void endHourglass(std::chrono::milliseconds time);
    void endReplayThatIsOver();
    void watchRecording();

    Script::PanelOwner& owner_;
    Script::Person& person_;
    const SessionSettings settings_;
    SessionObserver& observer_;
    const OpenStream openStream_;
    Script::Recorder recorder_;
    std::optional<std::string> stopReason_;  // of the recording
    SessionLog log_;
    bool wasLinkUp_ = false;
    Station station_;
    Connection renewals_;
    bool isKeptReadOnly_ = false;             // as the person wants it
    std::chrono::milliseconds hourglass_{0};  // how long it has been there
};

}  // namespace Orvo::Manager
