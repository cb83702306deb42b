#pragma once

#include <memory>
#include <utility>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/event_hub.h"
#include "Orvo/core/host_commands.h"
#include "Orvo/core/power_state.h"
#include "Orvo/core/read_only_mode.h"
#include "Orvo/generator/oscilloscope.h"
#include "Orvo/generator/wave_generator.h"
#include "Orvo/monitor/mute_state.h"
#include "Orvo/monitor/rail_readouts.h"
#include "Orvo/monitor/status_lamps.h"
#include "Orvo/monitor/temperature.h"
#include "Orvo/monitor/volume.h"
#include "Orvo/service/amplifier_id.h"
#include "Orvo/service/information_entry.h"
#include "Orvo/service/message_log.h"
#include "Orvo/service/port_discovery.h"
#include "Orvo/service/quick_test.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The panel's subjects over one set of widgets, and the entry through which the widgets notify
/// them.
class Panel final : public Widgets::NotificationSink {
public:
    Panel(std::shared_ptr<Widgets::WidgetTree> runtime, Platform platform);
    ~Panel() override;

    /// Brings the widgets from their layout to the panel's first state, once; their notifications
    /// are taken from here on.
    void create();

    /// No notification and no event passes from here on; what is under way ends without an error,
    /// and the panel with it.
    static void release(std::unique_ptr<Panel> panel);

    void notify(Widgets::Notification& notification) override;
    void failed(const Error& error) override;

    /// Throws error 1001 on another thread than the one that made the panel.
    void checkThread() const {
        if (&kThread != thread_) refuseThread();
    }

    void setErrorHandler(ErrorHandler handler);

private:
    friend class UnderWay;
    // Ends what is under way when the panel was released while a prompt was open.
    class Prompt;

    [[noreturn]] static void refuseThread();
    void report(const Error& error) const;

    // Each thread has its own, at an address that takes no call to find out.
    static inline constinit thread_local const char kThread = 0;

    const char* thread_ = &kThread;
    bool isUnderWay_ = false;
    std::unique_ptr<Panel> released_;  // itself, until what is under way ends
    std::shared_ptr<Widgets::WidgetTree> runtime_;
    std::shared_ptr<const ErrorHandler> errorHandler_;  // none: standard error
    ErrorHandler onError_ = [this](const Error& error) { report(error); };
    std::unique_ptr<Prompt> prompt_;

public:
    // The subjects stand in the open for the members and the notification table, which only say who
    // does what. NOLINTBEGIN(*-non-private-member-variables-in-classes)
    EventHub events{onError_};
    Receivers<CallListener*> callListeners;
    PowerState powerState{*runtime_, events};
    HostCommands hostCommands{events};
    ReadOnlyMode readOnlyMode{*runtime_};
    StatusLamps statusLamps{*runtime_};
    RailReadouts railReadouts{*runtime_};
    Volume volume{*runtime_, events};
    MuteState muteState{*runtime_};
    Temperature temperature{*runtime_, events};
    WaveGenerator waveGenerator{*runtime_, events};
    Oscilloscope oscilloscope{*runtime_};
    QuickTest quickTest{*runtime_};
    MessageLog messageLog{*runtime_};
    AmplifierId amplifierId{*runtime_, messageLog, events};
    InformationEntry informationEntry;
    PortDiscovery portDiscovery;
    // NOLINTEND(*-non-private-member-variables-in-classes)
};

/// Something that the panel does, perhaps while it does something else already. A panel that is
/// released meanwhile ends with the outermost.
class UnderWay {
public:
    explicit UnderWay(Panel& panel)
        : panel_(panel), isOutermost_(!std::exchange(panel.isUnderWay_, true)) {}
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;
    ~UnderWay() {
        if (!isOutermost_) return;
        panel_.isUnderWay_ = false;
        if (panel_.released_ != nullptr) [[unlikely]]
            panel_.released_.reset();
    }

private:
    Panel& panel_;
    const bool isOutermost_;
};

}  // namespace Orvo
