#include "Manager/Session/manager_session.h"

#include <filesystem>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "Manager/Link/link_device.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"
#include "Script/present_state.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kKept =
    "What happens from now on is kept until there is another file for the recording.";
constexpr auto kNothing = "What happens from now on is not recorded.";
constexpr auto kLost =
    "What happens from now on is lost. What has happened until now can be kept in another file.";

// Nobody above would know what to do: what there is no memory for is left out.
template <class Act>
void asFarAsMemoryGoes(const Act& act) {
    try {
        act();
    } catch (const std::bad_alloc&) {
    } catch (const Error& error) {
        if (error.number() != Errors::kOutOfMemory.number()) throw;
    }
}

std::string nameOf(const std::string& file) {
    return std::filesystem::path(file).filename().string();
}

std::string clock() { return timeOfDay(std::chrono::system_clock::now()); }

}  // namespace

ManagerSession::ManagerSession(Script::PanelOwner& owner, Script::Person& person,
                               SessionSettings settings, SessionObserver& observer,
                               OpenStream openStream)
    : owner_(owner),
      person_(person),
      settings_(std::move(settings)),
      observer_(observer),
      openStream_(std::move(openStream)),
      recorder_(owner, settings_.answers),
      log_(owner, settings_.log),
      station_(owner, [this](const std::string& what) { say(what); }) {
    if (!settings_.record.empty()) {
        recorder_.start(Script::RecordFile(settings_.record, settings_.existing));
    }
    station_.conversation().setClock(clock);
    serveFreshPanels();
    listenToErrors();
    if (settings_.isReadOnly) setReadOnly(true);
    log_.add("The program has started");
}

ManagerSession::~ManagerSession() {
    owner_.panel().setErrorHandler({});
    log_.flush();
}

void ManagerSession::say(const std::string& message) {
    log_.add(message);
    observer_.say(message);
}

// After the recorder, which is to hear what a fresh panel is told.
void ManagerSession::serveFreshPanels() {
    renewals_ = owner_.onRenewed([this] { takeFreshPanel(); });
}

void ManagerSession::takeFreshPanel() {
    listenToErrors();
    if (isKeptReadOnly_ && !isReplaying()) owner_.panel().ReadOnly(true);
}

void ManagerSession::setReadOnly(bool isReadOnly) {
    isKeptReadOnly_ = isReadOnly;
    owner_.panel().ReadOnly(isReadOnly);
}

void ManagerSession::listenToErrors() {
    owner_.panel().setErrorHandler([this](const Error& error) {
        asFarAsMemoryGoes([&] {
            station_.conversation().failed(error);
            say("Error " + std::to_string(error.number()) + ": " + error.what());
        });
    });
}

void ManagerSession::letPass(std::chrono::milliseconds time) {
    asFarAsMemoryGoes([&] {
        if (!isReplaying()) owner_.store().advance(time);
        station_.advance(time);
        endHourglass(time);
        endReplayThatIsOver();
        watchRecording();
        keepLog();
    });
}

// The simulator's host leaves it to its program how much the panel shows; a link's keeps house
// itself, and so does a script.
void ManagerSession::keepLog() {
    const bool isLinkUp = station_.situation().isLinkUp;
    if (std::exchange(wasLinkUp_, isLinkUp) != isLinkUp && !isReplaying())
        log_.add(isLinkUp ? "Link up" : "Link down");
    if (simulator() != nullptr) log_.shorten();
    if (const auto reason = log_.flush()) say("The log is in memory alone: " + *reason);
}

// The panel leaves it to its host to take the hourglass away again: when the amplifier has spoken
// since, or will not. A replay does so itself.
void ManagerSession::endHourglass(std::chrono::milliseconds time) {
    Runtime::Store& store = owner_.store();
    hourglass_ = store.pointer() == Widgets::Pointer::standard ? 0ms : hourglass_ + time;
    if (hourglass_ == 0ms) return;
    const auto silence = station_.situation().silence.value_or(hourglass_);
    const bool isAwaited = station_.isConnected() && silence >= hourglass_ && silence < kStaleAfter;
    if (isAwaited || isReplaying()) return;
    store.mousePointer().setPointer(Widgets::Pointer::standard);
    recorder_.pointerIsSet();
}

void ManagerSession::connectSimulator(Simulator::PowerAtStart power) {
    stopReplay();
    connect([this, power] {
        return std::make_unique<SimulatedHost>(owner_.panel(), settings_.seed, power,
                                               [](auto) { return clock(); });
    });
}

void ManagerSession::connectLink(const LinkAddress& address) {
    stopReplay();
    connect([this, address] {
        return std::make_unique<LinkDevice>(
            owner_, address, [this] { return isKeptReadOnly_; }, openStream_);
    });
}

void ManagerSession::connect(const Station::DeviceMaker& make) {
    station_.connect(make);
    log_.add("Connecting: " + station_.device()->name());
}

void ManagerSession::connectNothing() {
    stopReplay();
    if (station_.isConnected()) log_.add("Disconnecting: " + station_.device()->name());
    station_.disconnect();
}

SimulatedHost* ManagerSession::simulator() const {
    return dynamic_cast<SimulatedHost*>(station_.device());
}

const LinkDevice* ManagerSession::link() const {
    return dynamic_cast<const LinkDevice*>(station_.device());
}

// Where nothing can be recorded, nothing is given up.
void ManagerSession::startRecording(const std::string& file) {
    std::optional<Script::RecordFile> made;
    try {
        made.emplace(file, Script::Existing::overwritten);
    } catch (const std::runtime_error& failure) {
        return observer_.warn({"Not recorded", "The session can't be recorded.", failure.what()});
    }
    stopReplay();
    stopRecording();
    recorder_.start(std::move(*made));
    for (const std::string& generator : station_.generators()) {
        if (generator.empty()) continue;
        recorder_.file().append("# " + std::string(Script::kNotBrought) + generator + '\n');
    }
    say("Recording to " + nameOf(file));
}

void ManagerSession::stopRecording() {
    const bool wasRecording = recorder_.isRecording();
    const auto reason = endRecording();
    if (!wasRecording) return;
    if (!reason) return say("The session is recorded");
    observer_.warn({"Not all is recorded", "Not all of the session is recorded.", *reason});
}

std::optional<std::string> ManagerSession::endRecording() {
    if (!recorder_.isRecording()) return std::nullopt;
    recorder_.writeWait();
    auto reason = recorder_.file().failure();
    recorder_.stop();
    stopReason_.reset();
    return reason;
}

void ManagerSession::watchRecording() {
    if (!recorder_.isRecording()) return;
    Script::RecordFile& file = recorder_.file();
    const auto reason = file.failure();
    if (!reason || reason == stopReason_) return;
    stopReason_ = reason;
    say("The recording stopped: " + *reason);
    if (file.isChanged()) return observer_.warn({"The recording ended", kNothing, *reason});
    observer_.recordingStopped({"The recording stopped", file.isLost() ? kLost : kKept, *reason});
}

void ManagerSession::continueRecording(const std::string& file) {
    if (!hasRecordingStopped()) return;
    try {
        recorder_.file().moveTo(file, Script::Existing::overwritten);
    } catch (const std::runtime_error& failure) {
        return observer_.recordingStopped(
            {"Not recorded", "The recording can't go on there.", failure.what()});
    }
    if (recorder_.file().isLost()) return stopRecording();
    stopReason_.reset();
    say("The recording goes on in " + nameOf(file));
}

void ManagerSession::startReplay(const std::string& file) {
    try {
        Script::openRegular(file);
    } catch (const std::runtime_error& failure) {
        return observer_.warn({"Not replayed", "The session can't be read.", failure.what()});
    }
    stopRecording();
    log_.mark("Replayed: ");
    connect([this, file] { return std::make_unique<Replay>(owner_, person_, file); });
    owner_.renew();
}

void ManagerSession::stopReplay() {
    if (!isReplaying()) return;
    station_.disconnect();
    log_.mark("");
    if (isKeptReadOnly_) owner_.panel().ReadOnly(true);
    say("The replay is over");
}

Replay* ManagerSession::replay() const { return dynamic_cast<Replay*>(station_.device()); }

void ManagerSession::endReplayThatIsOver() {
    const Replay* replay = this->replay();
    if (replay == nullptr || !replay->isOver()) return;
    const auto complaint = replay->complaint();
    stopReplay();
    if (!complaint) return;
    observer_.warn(
        {"The replay ended early", "The session has a line that can't be replayed.", *complaint});
}

bool ManagerSession::isReadOnly() const {
    return !owner_.store().widget(Layout::kCommon.powerButton).isEnabled();
}

}  // namespace Orvo::Manager
