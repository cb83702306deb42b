#include "Manager/Station/station.h"

#include <utility>

#include "Manager/Link/link_device.h"

namespace Orvo::Manager {

Station::Station(MarvaneAssistant& panel) : panel_(panel) {
    listen();
    hearAfterDevice();
}

Station::~Station() = default;

void Station::connect(DeviceMaker make) {
    disconnect();
    makeDevice_ = std::move(make);
    plugIn(makeDevice_());
}

void Station::connectSimulator(std::uint32_t seed, Simulator::PowerAtStart power) {
    connect([this, seed, power] { return std::make_unique<SimulatedDevice>(panel_, seed, power); });
}

void Station::connectLink(const LinkAddress& address) {
    connect([this, address] {
        return std::make_unique<LinkDevice>(panel_, address, [this] { renewPanel(); });
    });
}

void Station::disconnect() {
    if (!isConnected()) return;
    makeDevice_ = {};
    plugIn(nullptr);
    panel_.Connected(false);
}

void Station::plugIn(std::unique_ptr<Device> device) {
    showsOldValues_ |= isConnected() && device_->sinceLastWord();
    device_ = std::move(device);
    hearAfterDevice();
}

void Station::listen() {
    calls_ = panel_.listen(*this);
    beforeDevice_ = panel_.connect([this](Long dispatchId, std::span<Value> arguments) {
        conversation_.raised(dispatchId, arguments);
    });
}

void Station::hearAfterDevice() {
    afterDevice_ = panel_.connect([this](Long, std::span<Value>) { conversation_.handled(); });
}

void Station::renewPanel() {
    if (!renew_) throw Error(70, "The panel of this program can't be renewed");
    renew_();
    conversation_.startAnew();
    traces_ = {};
    isLinkUp_ = false;
    showsOldValues_ = false;
    listen();
    if (isConnected()) device_->panelRenewed();
    hearAfterDevice();
}

void Station::startAnew() {
    device_.reset();
    renewPanel();
    if (makeDevice_) plugIn(makeDevice_());
}

SimulatedHost* Station::simulator() const {
    auto* device = dynamic_cast<SimulatedDevice*>(device_.get());
    return device == nullptr ? nullptr : &device->host();
}

void Station::advance(Milliseconds elapsed) {
    now_ += elapsed;
    conversation_.setTime(now_);
    if (isConnected()) device_->advance(elapsed);
}

Situation Station::situation() const {
    return {.connectedTo = isConnected() ? device_->name() : "",
            .isLinkUp = isLinkUp_,
            .silence = isConnected() ? device_->sinceLastWord() : std::nullopt,
            .showsOldValues = showsOldValues_};
}

void Station::called(const Member& member, std::span<const Value> arguments) {
    if (listener_ != nullptr) listener_->called(member, arguments);
    conversation_.called(member, arguments);
    traces_.note(member, arguments);
    if (member.name == "Connected") isLinkUp_ = bool(std::get<Boolean>(arguments[0]));
}

void Station::returned(const Member& member, const Value& result) {
    if (listener_ != nullptr) listener_->returned(member, result);
    conversation_.returned(member, result);
}

void Station::failed(const Member& member, const Error& error) {
    if (listener_ != nullptr) listener_->failed(member, error);
    conversation_.failed(member, error);
}

}  // namespace Orvo::Manager
