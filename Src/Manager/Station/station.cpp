#include "Manager/Station/station.h"

#include <utility>

#include "Orvo/layout/roles.h"
#include "Orvo/store/shown.h"

namespace Orvo::Manager {
Station::Station(Script::PanelOwner& owner, Reconciler::Tell tell)
    : owner_(owner),
      reconciler_(owner,
                  [this, tell = std::move(tell)](const std::string& what) {
                      conversation_.remark(what);
                      tell(what);
                  }),
      renewalsBeforeDevice_(owner.onRenewed([this] { takeFreshPanel(); })) {
    hearBeforeDevice();
    plugIn(nullptr);
}

void Station::connect(const DeviceMaker& make) {
    disconnect();
    plugIn(make());
}

void Station::disconnect() {
    if (!isConnected()) return;
    plugIn(nullptr);
    owner_.panel().Connected(false);
}

void Station::plugIn(std::unique_ptr<Device> device) {
    noteLastWord();
    device_ = std::move(device);
    notices_.startAnew();
    connectedAt_ = now_;
    hearAfterDevice();
    renewalsAfterDevice_ = owner_.onRenewed([this] { hearAfterDevice(); });
}

void Station::takeFreshPanel() {
    conversation_.startAnew();
    traces_.startAnew();
    notices_.startAnew();
    reconciler_.startAnew();
    lastWord_.reset();
    hearBeforeDevice();
}

void Station::hearBeforeDevice() {
    MarvaneAssistant& panel = owner_.panel();
    conversationCalls_ = panel.listen(conversation_);
    traceCalls_ = panel.listen(traces_);
    reconcilerCalls_ = panel.listen(reconciler_);
    beforeDevice_ = panel.connect([this](Long dispatchId, std::span<Value> arguments) {
        conversation_.raised(dispatchId, arguments);
        reconciler_.raised(dispatchId);
        if (hearing() == Hearing::device) notices_.raised(dispatchId, arguments);
    });
}

void Station::hearAfterDevice() {
    afterDevice_ =
        owner_.panel().connect([this](Long, std::span<Value>) { conversation_.handled(); });
}

void Station::advance(Milliseconds elapsed) {
    now_ += elapsed;
    // There may have been no memory for it when the panel was fresh.
    if (!beforeDevice_.isConnected()) hearBeforeDevice();
    if (!afterDevice_.isConnected()) hearAfterDevice();
    conversation_.setTime(now_);
    if (isConnected()) device_->advance(elapsed);
    noteLastWord();
    noteIntervals();
    reconciler_.advance(elapsed, hearing());
}

Hearing Station::hearing() const {
    if (!isConnected()) return Hearing::nobody;
    return device_->sinceLastWord() ? Hearing::device : Hearing::silentDevice;
}

std::optional<Station::Milliseconds> Station::silence() const {
    if (hearing() == Hearing::device) return device_->sinceLastWord();
    return lastWord_ ? std::optional(now_ - *lastWord_) : std::nullopt;
}

void Station::noteLastWord() {
    if (hearing() == Hearing::device) lastWord_ = now_ - *device_->sinceLastWord();
}

std::optional<std::vector<Notice>> Station::notices() const {
    if (!statusText(situation()).veil.empty()) return std::nullopt;
    return notices_.on(owner_.store());
}

// What was drawn by one that is silent, or gone, keeps the time that it had.
void Station::noteIntervals() {
    if (hearing() != Hearing::device) return;
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        traces_.setInterval(channel, device_->sampleInterval(channel));
    }
}

Situation Station::situation() const {
    return {.connectedTo = isConnected() ? device_->name() : "",
            .isLinkUp = Runtime::isLit(owner_.store(), Layout::kCommon.linkLamp),
            .isHeard = hearing() == Hearing::device,
            .connectedFor = now_ - connectedAt_,
            .silence = silence()};
}

}  // namespace Orvo::Manager
