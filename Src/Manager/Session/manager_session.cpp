#include "Manager/Session/manager_session.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <utility>

#include "Manager/Link/link_device.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

std::string nameOf(const std::string& file) {
    return std::filesystem::path(file).filename().string();
}

}  // namespace

ManagerSession::ManagerSession(Script::PanelOwner& owner, Script::Person& person,
                               SessionSettings settings, SessionObserver& observer)
    : owner_(owner),
      person_(person),
      settings_(std::move(settings)),
      observer_(observer),
      recorder_(settings_.record.empty()
                    ? nullptr
                    : std::make_unique<Script::Recorder>(
                          Script::RecordFile(settings_.record, settings_.existing), owner,
                          settings_.answers)),
      station_(owner, [this](const std::string& what) { observer_.say(what); }) {
    serveFreshPanels();
    listenToErrors();
    setReadOnly(settings_.isReadOnly);
}

ManagerSession::~ManagerSession() { owner_.panel().setErrorHandler({}); }

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
        station_.conversation().failed(error);
        observer_.say("Error " + std::to_string(error.number()) + ": " + error.what());
    });
}

void ManagerSession::letPass(std::chrono::milliseconds time) {
    if (!isReplaying()) owner_.store().advance(time);
    station_.advance(time);
    endHourglass(time);
    endReplayThatIsOver();
    watchRecording();
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
    if (isRecording()) recorder_->pointerIsSet();
}

void ManagerSession::connectSimulator(Simulator::PowerAtStart power) {
    stopReplay();
    station_.connect([this, power] {
        return std::make_unique<SimulatedHost>(owner_.panel(), settings_.seed, power);
    });
}

void ManagerSession::connectLink(const LinkAddress& address) {
    stopReplay();
    station_.connect([this, address] {
        return std::make_unique<LinkDevice>(owner_, address, [this] { return isKeptReadOnly_; });
    });
}

void ManagerSession::connectNothing() {
    stopReplay();
    station_.disconnect();
}

SimulatedHost* ManagerSession::simulator() const {
    return dynamic_cast<SimulatedHost*>(station_.device());
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
    const bool wasReadOnly = isReadOnly();
    const auto tab = owner_.store().get<Runtime::StoredTabs>(Layout::kTabs.id).state().current;
    recorder_ = std::make_unique<Script::Recorder>(std::move(*made), owner_, settings_.answers);
    serveFreshPanels();
    station_.startAnew();
    if (wasReadOnly && !isReadOnly()) owner_.panel().ReadOnly(true);
    owner_.store().perform(Runtime::Deed::tab(Layout::kTabs.id, tab));
    observer_.say("Recording from a fresh start to " + nameOf(file));
}

void ManagerSession::stopRecording() {
    const bool wasRecording = recorder_ != nullptr;
    const auto reason = endRecording();
    if (!wasRecording) return;
    if (!reason) return observer_.say("The session is recorded");
    observer_.warn({"Not all is recorded", "The end of the session is not recorded.", *reason});
}

std::optional<std::string> ManagerSession::endRecording() {
    if (recorder_ == nullptr) return std::nullopt;
    recorder_->writeWait();
    auto reason = recorder_->file().failure();
    recorder_.reset();
    hasStopped_ = false;
    return reason;
}

void ManagerSession::watchRecording() {
    if (!isRecording()) return;
    const auto reason = recorder_->file().failure();
    if (!reason) return;
    hasStopped_ = true;
    observer_.say("The recording stopped: " + *reason);
    observer_.recordingStopped({"The recording stopped",
                                "What happens from now on is kept until there is another file for "
                                "the recording.",
                                *reason});
}

void ManagerSession::continueRecording(const std::string& file) {
    if (!hasRecordingStopped()) return;
    try {
        recorder_->file().moveTo(file, Script::Existing::overwritten);
    } catch (const std::runtime_error& failure) {
        return observer_.recordingStopped(
            {"Not recorded", "The recording can't go on there.", failure.what()});
    }
    hasStopped_ = false;
    observer_.say("The recording goes on in " + nameOf(file));
}

void ManagerSession::startReplay(const std::string& file) {
    try {
        Script::openRegular(file);
    } catch (const std::runtime_error& failure) {
        return observer_.warn({"Not replayed", "The session can't be read.", failure.what()});
    }
    stopRecording();
    station_.connect([this, file] { return std::make_unique<Replay>(owner_, person_, file); });
    owner_.renew();
}

void ManagerSession::stopReplay() {
    if (!isReplaying()) return;
    station_.disconnect();
    if (isKeptReadOnly_) owner_.panel().ReadOnly(true);
    observer_.say("The replay is over");
}

const Replay* ManagerSession::replay() const {
    return dynamic_cast<const Replay*>(station_.device());
}

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
