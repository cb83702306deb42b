#include "Manager/Station/station.h"

#include <utility>

#include "Manager/Link/link_device.h"

namespace Orvo::Manager {
namespace {

Error notByThisProgram() { return {70, "The panel of this program can't be renewed"}; }

}  // namespace

Station::Station(MarvaneAssistant& panel) : panel_(panel), calls_(panel, *this) {
    renewalBefore_ = owner_.onRenewed([this] { startWithPanel(); });
    startWithPanel();
    plugIn(nullptr);
}

Station::~Station() = default;

void Station::Owner::exchange() {
    if (!station_.renew_) throw notByThisProgram();
    station_.renew_();
}

// Nobody that is connected looks at the widgets.
Runtime::Store& Station::Owner::store() { throw notByThisProgram(); }

void Station::connect(DeviceMaker make) {
    disconnect();
    makeDevice_ = std::move(make);
    plugIn(makeDevice_());
}

void Station::connectSimulator(std::uint32_t seed, Simulator::PowerAtStart power) {
    connect([this, seed, power] {
        return std::make_unique<SimulatedDevice>(panel_, calls_, seed, power);
    });
}

void Station::connectLink(const LinkAddress& address) {
    connect([this, address] { return std::make_unique<LinkDevice>(owner_, address); });
}

void Station::disconnect() {
    if (!isConnected()) return;
    makeDevice_ = {};
    plugIn(nullptr);
    calls_.Connected(false);
}

void Station::plugIn(std::unique_ptr<Device> device) {
    showsOldValues_ |= isConnected() && device_->sinceLastWord();
    device_ = std::move(device);
    renewalAfter_ = owner_.onRenewed([this] { hearAfterDevice(); });
    hearAfterDevice();
}

void Station::startWithPanel() {
    conversation_.startAnew();
    traces_ = {};
    isLinkUp_ = false;
    showsOldValues_ = false;
    beforeDevice_ = panel_.connect([this](Long dispatchId, std::span<Value> arguments) {
        conversation_.raised(dispatchId, arguments);
    });
}

void Station::hearAfterDevice() {
    afterDevice_ = panel_.connect([this](Long, std::span<Value>) { conversation_.handled(); });
}

void Station::startAnew() {
    device_.reset();
    owner_.renew();
    if (makeDevice_) plugIn(makeDevice_());
}

Simulator::SimulatedHost* Station::simulator() const {
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
