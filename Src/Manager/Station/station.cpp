#include "Manager/Station/station.h"

#include <utility>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

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

void Station::connect(DeviceMaker make) {
    disconnect();
    makeDevice_ = std::move(make);
    plugIn(makeDevice_());
}

void Station::disconnect() {
    if (!isConnected()) return;
    makeDevice_ = {};
    plugIn(nullptr);
    owner_.panel().Connected(false);
}

void Station::plugIn(std::unique_ptr<Device> device) {
    noteLastWord();
    device_ = std::move(device);
    connectedAt_ = now_;
    hearAfterDevice();
    renewalsAfterDevice_ = owner_.onRenewed([this] { hearAfterDevice(); });
}

void Station::takeFreshPanel() {
    conversation_.startAnew();
    traces_.startAnew();
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
    });
}

void Station::hearAfterDevice() {
    afterDevice_ =
        owner_.panel().connect([this](Long, std::span<Value>) { conversation_.handled(); });
}

void Station::startAnew() {
    device_.reset();
    owner_.renew();
    if (makeDevice_) plugIn(makeDevice_());
}

void Station::advance(Milliseconds elapsed) {
    now_ += elapsed;
    conversation_.setTime(now_);
    if (isConnected()) device_->advance(elapsed);
    noteLastWord();
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

Situation Station::situation() const {
    const auto& lamp = owner_.store().get<Runtime::StoredShape>(Layout::kCommon.linkLamp);
    return {.connectedTo = isConnected() ? device_->name() : "",
            .isLinkUp = lamp.state().isLit(),
            .isHeard = hearing() == Hearing::device,
            .connectedFor = now_ - connectedAt_,
            .silence = silence()};
}

}  // namespace Orvo::Manager
