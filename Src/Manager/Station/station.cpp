#include "Manager/Station/station.h"

#include <utility>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Manager {
Station::Station(Script::PanelOwner& owner)
    : owner_(owner), renewalsBeforeDevice_(owner.onRenewed([this] { takeFreshPanel(); })) {
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
    showsOldValues_ |= isConnected() && device_->sinceLastWord();
    device_ = std::move(device);
    hearAfterDevice();
    renewalsAfterDevice_ = owner_.onRenewed([this] { hearAfterDevice(); });
}

void Station::takeFreshPanel() {
    conversation_.startAnew();
    traces_.startAnew();
    showsOldValues_ = false;
    hearBeforeDevice();
}

void Station::hearBeforeDevice() {
    MarvaneAssistant& panel = owner_.panel();
    conversationCalls_ = panel.listen(conversation_);
    traceCalls_ = panel.listen(traces_);
    beforeDevice_ = panel.connect([this](Long dispatchId, std::span<Value> arguments) {
        conversation_.raised(dispatchId, arguments);
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
}

Situation Station::situation() const {
    const auto& lamp = owner_.store().get<Runtime::StoredShape>(Layout::kCommon.linkLamp);
    return {.connectedTo = isConnected() ? device_->name() : "",
            .isLinkUp = lamp.state().isLit(),
            .silence = isConnected() ? device_->sinceLastWord() : std::nullopt,
            .showsOldValues = showsOldValues_};
}

}  // namespace Orvo::Manager
