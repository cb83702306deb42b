#pragma once

#include <array>
#include <type_traits>

#include "Orvo/core/panel.h"
#include "Orvo/layout/roles.h"
#include "Orvo/values/indexed.h"
#include "Orvo/widgets/notification.h"

namespace Orvo {

/// One notification that the panel handles; `number` is the channel or pair that the widget stands
/// for.
struct BoundNotification {
    Widgets::WidgetId widget{};
    Widgets::NotificationKind kind{};
    void (*handle)(Panel& panel, Widgets::Notification& notification, Integer number) = nullptr;
    Integer number = 0;
};

namespace Detail {

// Calls a subject's function with what it asks for: nothing, the number of the row, or the key.
template <auto kSubject, auto kFunction>
void handle(Panel& panel, Widgets::Notification& notification, Integer number) {
    auto& subject = panel.*kSubject;
    using Function = decltype(kFunction);
    if constexpr (std::is_invocable_v<Function, decltype(subject)>) {
        (subject.*kFunction)();
    } else if constexpr (std::is_invocable_v<Function, decltype(subject), const Integer&>) {
        (subject.*kFunction)(number);
    } else {
        (subject.*kFunction)(notification.keyCode);
    }
}

template <auto kSubject, auto kFunction, Widgets::Kind kKind>
constexpr BoundNotification on(Widgets::Ref<kKind> widget, Widgets::NotificationKind kind,
                               Integer number = 0) {
    if (!Widgets::gives(kKind, kind)) throw "no such notification";
    return {widget, kind, &handle<kSubject, kFunction>, number};
}

consteval auto notificationTable() {
    using P = Panel;
    using Layout::kCommon;
    using enum Widgets::NotificationKind;
    // clang-format off
    const auto ofPanel = std::to_array<BoundNotification>({
        on<&P::powerState,       &PowerState::request>           (kCommon.powerButton,        click),
        on<&P::hostCommands,     &HostCommands::readInternalData>(kCommon.internalDataButton, click),
        on<&P::hostCommands,     &HostCommands::toggleMute>      (kCommon.muteButton,         release),
        on<&P::amplifierId,      &AmplifierId::picked>           (kCommon.amplifierIds,       click),
        on<&P::amplifierId,      &AmplifierId::keyPressed>       (kCommon.amplifierIds,       keyPress),
        on<&P::informationEntry, &InformationEntry::start>       (kCommon.resetLogButton,     click),
        on<&P::informationEntry, &InformationEntry::keyPressed>  (kCommon.log,                keyPress),
    });
    const auto ofPair = [](Integer number, const Layout::Pair& pair) {
        return std::to_array<BoundNotification>({
            on<&P::powerState,    &PowerState::request>     (pair.powerCheck,  release),
            on<&P::waveGenerator, &WaveGenerator::start>    (pair.startButton, click,  number),
            on<&P::temperature,   &Temperature::sliderMoved>(pair.testSlider,  change, number),
            on<&P::temperature,   &Temperature::timerTicked>(pair.testTimer,   tick,   number),
        });
    };
    const auto ofChannel = [](Integer number, const Layout::Channel& channel) {
        return std::to_array<BoundNotification>({
            on<&P::hostCommands,  &HostCommands::toggleMute>      (channel.muteButton,      click,  number),
            on<&P::waveGenerator, &WaveGenerator::routeToPositive>(channel.positive.option, click,  number),
            on<&P::waveGenerator, &WaveGenerator::routeToNegative>(channel.negative.option, click,  number),
            on<&P::volume,        &Volume::sliderMoved>           (channel.volumeSlider,    change, number),
        });
    };
    // clang-format on
    return joined(ofPanel, ofEach(Layout::kPairs, ofPair), ofEach(Layout::kChannels, ofChannel));
}

}  // namespace Detail

/// Every notification that the panel handles; all others are left unhandled.
inline constexpr auto kNotifications = Detail::notificationTable();

}  // namespace Orvo
