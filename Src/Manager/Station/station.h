#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "Manager/Station/conversation.h"
#include "Manager/Station/device.h"
#include "Manager/Station/event_log.h"
#include "Manager/Station/notices.h"
#include "Manager/Station/reconciler.h"
#include "Manager/Station/status_text.h"
#include "Manager/Station/traces.h"
#include "Script/panel_owner.h"

namespace Orvo::Manager {

/// A panel with what is connected to it, and with what is known of what passes between them. Its
/// time is its owner's to advance. It must end before the panel.
class Station final {
public:
    using Milliseconds = std::chrono::milliseconds;
    using DeviceMaker = std::function<std::unique_ptr<Device>()>;

    /// `tell` is told what a person did in vain.
    explicit Station(
        Script::PanelOwner& owner, Reconciler::Tell tell = [](const std::string&) {});

    /// One device at a time: what was connected is disconnected first.
    void connect(const DeviceMaker& make);
    /// The panel shows that the link is down, and for the rest what it showed last.
    void disconnect();
    [[nodiscard]] bool isConnected() const { return device_ != nullptr; }
    /// Null when nothing is connected.
    [[nodiscard]] Device* device() const { return device_.get(); }

    void advance(Milliseconds elapsed);
    [[nodiscard]] Situation situation() const;
    /// Null while nothing is known of the amplifier.
    [[nodiscard]] std::optional<std::vector<Notice>> notices() const;
    [[nodiscard]] const auto& generators() const { return notices_.generators(); }

    [[nodiscard]] Conversation& conversation() { return conversation_; }
    [[nodiscard]] EventLog& log() { return log_; }
    [[nodiscard]] const Traces& traces() const { return traces_; }

private:
    void plugIn(std::unique_ptr<Device> device);
    void takeFreshPanel();
    void hearBeforeDevice();
    void hearAfterDevice();
    [[nodiscard]] Hearing hearing() const;
    [[nodiscard]] std::optional<Milliseconds> silence() const;
    void noteLastWord();
    void noteIntervals();

    Script::PanelOwner& owner_;
    EventLog log_;
    Conversation conversation_{log_};
    Traces traces_;
    Notices notices_;
    Reconciler reconciler_;
    Milliseconds now_{0};
    Milliseconds connectedAt_{0};
    std::optional<Milliseconds> lastWord_;  // when
    Connection conversationCalls_;
    Connection traceCalls_;
    Connection reconcilerCalls_;

    // An event goes to the sinks in this order, on a fresh panel too: what the device does lies
    // between the other two.
    Connection renewalsBeforeDevice_;
    Connection beforeDevice_;
    std::unique_ptr<Device> device_;
    Connection renewalsAfterDevice_;
    Connection afterDevice_;
};

}  // namespace Orvo::Manager
