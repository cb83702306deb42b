#include "Manager/Station/reconciler.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "Orvo/core/event_table.h"
#include "Orvo/monitor/volume.h"
#include "Orvo/store/shown.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr Long kOnOff = eventNamed("OnOff").dispatchId;
constexpr const Member& kReadout = memberNamed<Integer, Integer>("Volume");
constexpr const Member& kSlider = memberNamed<Integer, Integer>("VolumeSlider");

std::optional<std::size_t> indexOf(Integer channel) {
    if (channel < 1 || std::size_t(channel) > Layout::kChannels.size()) return std::nullopt;
    return std::size_t(channel - 1);
}

}  // namespace

void Reconciler::startAnew() {
    isPowerAsked_ = false;
    power_ = {};
    volumes_ = {};
    tests_ = {};
}

void Reconciler::raised(Long dispatchId) { isPowerAsked_ |= dispatchId == kOnOff; }

void Reconciler::called(const Member& member, std::span<const Value> arguments) {
    told_.reset();
    if (&member != &kReadout && &member != &kSlider) return;
    told_ = indexOf(std::get<Integer>(arguments[0]));
    if (told_ && &member == &kReadout) hearReadout(*told_, std::get<Integer>(arguments[1]));
}

void Reconciler::returned(const Member& member, const Value&) {
    if (told_ && &member == &kSlider) accept(*told_);
}

void Reconciler::hearReadout(std::size_t index, Integer readout) {
    if (std::exchange(volumes_[index].readout, readout) != readout) accept(index);
}

void Reconciler::accept(std::size_t index) {
    volumes_[index].known = slider(Layout::kChannels[index].volumeSlider).position;
}

void Reconciler::advance(Milliseconds elapsed, Hearing hearing) {
    elapsed_ = elapsed;
    hearing_ = hearing;
    reconcilePower();
    for (std::size_t i = 0; i < volumes_.size(); ++i) reconcileVolume(i);
    for (std::size_t i = 0; i < tests_.size(); ++i) reconcileTest(i);
}

// The lamp is the host's alone. A key flips a button without asking.
void Reconciler::reconcilePower() {
    const Boolean isOn = Runtime::isLit(owner_.store(), Layout::kCommon.powerLamp);
    const Integer differing = countOfButtonsThatDiffer(bool(isOn));
    if (differing == 0) isPowerAsked_ = false;
    if (!isOverdue(power_, differing, 0, isPowerAsked_ ? answerIsDue() : 0ms)) return;
    const bool isByKey = hearing_ != Hearing::nobody && !isPowerAsked_;
    tell_((isByKey ? "A key asks for nothing" : reason()) + ": the power is as it was");
    owner_.panel().PowerOn(isOn);
}

void Reconciler::reconcileVolume(std::size_t index) {
    auto& [known, readout, wait] = volumes_[index];
    const auto& state = slider(Layout::kChannels[index].volumeSlider);
    if (readout && std::abs(*readout) == std::abs(volumeAt(state.position))) known = state.position;
    if (state.isHeld || !isOverdue(wait, state.position, known, answerIsDue())) return;
    tell_(reason() + ": volume " + std::to_string(index + 1) + " is as it was");
    owner_.panel().VolumeSlider(Integer(index + 1), volumeAt(known));
}

// No host can move it, so it is taken back as a person would, which also tells a device that hears
// of it after all.
void Reconciler::reconcileTest(std::size_t index) {
    const auto widget = Layout::kPairs[index].testSlider;
    const auto& state = slider(widget);
    const bool isLeft =
        hearing_ == Hearing::device || state.isHeld || !owner_.store().acceptsInput(widget);
    if (!isOverdue(tests_[index], isLeft ? Integer{0} : state.position, 0, answerIsDue())) return;
    tell_(reason() + ": thermal test " + std::to_string(index + 1) + " has ended");
    owner_.store().perform(Runtime::Deed::move(widget, 0));
}

bool Reconciler::isOverdue(Wait& wait, Integer shown, Integer known, Milliseconds due) const {
    const bool isNew = shown == known || wait.shown != shown;
    wait = {shown, isNew ? 0ms : wait.lasted + elapsed_};
    return shown != known && wait.lasted >= due;
}

Integer Reconciler::countOfButtonsThatDiffer(bool isOn) const {
    const auto known = isOn ? Widgets::CheckValue::checked : Widgets::CheckValue::unchecked;
    return Integer(std::ranges::count_if(Layout::kPairs, [&](const Layout::Pair& pair) {
        return owner_.store().get<Runtime::StoredCheck>(pair.powerCheck).state().value != known;
    }));
}

const Runtime::SliderState& Reconciler::slider(Widgets::SliderRef slider) const {
    return owner_.store().get<Runtime::StoredSlider>(slider).state();
}

Reconciler::Milliseconds Reconciler::answerIsDue() const {
    return hearing_ == Hearing::nobody ? 0ms : kAnswerIsDue;
}

std::string Reconciler::reason() const {
    return hearing_ == Hearing::nobody ? "Nothing connected" : "No answer";
}

}  // namespace Orvo::Manager
