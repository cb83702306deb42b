#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "Manager/Host/simulated_device.h"
#include "Manager/Link/link_address.h"
#include "Manager/Station/conversation.h"
#include "Manager/Station/event_log.h"
#include "Manager/Station/observed_panel.h"
#include "Manager/Station/status_text.h"
#include "Manager/Station/traces.h"
#include "Script/panel_owner.h"

namespace Orvo::Manager {

/// A panel with what is connected to it, and with what is known of what passes between them. Its
/// time is its owner's to advance. It must end before the panel.
class Station final : private CallListener {
public:
    using Milliseconds = std::chrono::milliseconds;

    explicit Station(MarvaneAssistant& panel);
    ~Station() override;

    using DeviceMaker = std::function<std::unique_ptr<Device>()>;

    /// One device at a time: what was connected is disconnected first.
    void connect(DeviceMaker make);
    void connectSimulator(std::uint32_t seed,
                          Simulator::PowerAtStart power = Simulator::PowerAtStart::on);
    void connectLink(const LinkAddress& address);
    /// The panel shows that the link is down, and for the rest what it showed last.
    void disconnect();
    [[nodiscard]] bool isConnected() const { return device_ != nullptr; }
    /// Null when nothing is connected.
    [[nodiscard]] Device* device() const { return device_.get(); }
    /// Null when it isn't what is connected.
    [[nodiscard]] Simulator::SimulatedHost* simulator() const;

    void advance(Milliseconds elapsed);
    [[nodiscard]] Situation situation() const;

    /// The panel for whoever plays the host beside the device; what is called here is listened to.
    [[nodiscard]] MarvaneAssistantInterface& panel() { return calls_; }
    [[nodiscard]] Conversation& conversation() { return conversation_; }
    [[nodiscard]] EventLog& log() { return log_; }
    [[nodiscard]] const Traces& traces() const { return traces_; }
    /// A fresh panel, to which what is connected is connected as if for the first time.
    void startAnew();
    /// How a fresh panel comes in the place of this one; error 70 for whoever asks for one until
    /// this has been said.
    void renewWith(std::function<void()> renew) { renew_ = std::move(renew); }
    /// Who else listens to all that is called; null takes it away again.
    void listenWith(CallListener* listener) { listener_ = listener; }

    /// The panel for devices that ask for a fresh one.
    [[nodiscard]] Script::PanelOwner& owner() { return owner_; }

private:
    /// The panel as its owner exchanges it.
    class Owner final : public Script::PanelOwner {
    public:
        explicit Owner(Station& station) : station_(station) {}
        MarvaneAssistant& panel() override { return station_.panel_; }
        MarvaneAssistantInterface& calls() override { return station_.calls_; }
        Runtime::Store& store() override;

    private:
        void exchange() override;
        Station& station_;
    };

    void plugIn(std::unique_ptr<Device> device);
    void startWithPanel();
    void hearAfterDevice();

    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& result) override;
    void failed(const Member& member, const Error& error) override;

    MarvaneAssistant& panel_;
    ObservedPanel calls_;
    EventLog log_;
    Conversation conversation_{log_};
    Traces traces_;
    CallListener* listener_ = nullptr;
    std::function<void()> renew_;
    DeviceMaker makeDevice_;
    bool isLinkUp_ = false;
    bool showsOldValues_ = false;
    Milliseconds now_{0};

    // An event goes to the sinks in this order: what the device does lies between the other two.
    Owner owner_{*this};
    Script::PanelOwner::Subscription renewalBefore_;
    Connection beforeDevice_;
    std::unique_ptr<Device> device_;
    Script::PanelOwner::Subscription renewalAfter_;
    Connection afterDevice_;
};

}  // namespace Orvo::Manager
