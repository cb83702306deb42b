#pragma once

#include <array>
#include <string_view>
#include <type_traits>

#include "Orvo/core/panel.h"
#include "Orvo/layout/layout.h"
#include "Orvo/widgets/notification.h"

namespace Orvo {

/// One notification that the panel handles; `number` is the channel or pair that the widget stands
/// for.
struct BoundNotification {
    std::string_view widgetName;
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

template <auto kSubject, auto kFunction>
consteval BoundNotification on(std::string_view name, Widgets::NotificationKind kind,
                               Integer number = 0) {
    const Widgets::WidgetId widget = Layout::findWidget(name).value();
    if (!Widgets::gives(Layout::describe(widget).style.kind, kind)) throw "no such notification";
    return {name, widget, kind, &handle<kSubject, kFunction>, number};
}

consteval auto notificationTable() {
    using P = Panel;
    using enum Widgets::NotificationKind;
    // clang-format off
    return std::to_array<BoundNotification>({
        on<&P::powerState,       &PowerState::request>               ("cmdOnOff",         click),
        on<&P::powerState,       &PowerState::request>               ("chkOnOff12",       release),
        on<&P::powerState,       &PowerState::request>               ("chkOnOff34",       release),
        on<&P::hostCommands,     &HostCommands::toggleMute>          ("Command12",        click,    1),
        on<&P::hostCommands,     &HostCommands::toggleMute>          ("Command11",        click,    2),
        on<&P::hostCommands,     &HostCommands::toggleMute>          ("Command14",        click,    3),
        on<&P::hostCommands,     &HostCommands::toggleMute>          ("Command18",        click,    4),
        on<&P::hostCommands,     &HostCommands::readInternalData>    ("cmdReadInData",    click),
        on<&P::hostCommands,     &HostCommands::toggleMute>          ("Command17",        release,  0),
        on<&P::waveGenerator,    &WaveGenerator::routeToPositive>    ("optP1",            click,    1),
        on<&P::waveGenerator,    &WaveGenerator::routeToNegative>    ("optN1",            click,    1),
        on<&P::waveGenerator,    &WaveGenerator::routeToPositive>    ("optP2",            click,    2),
        on<&P::waveGenerator,    &WaveGenerator::routeToNegative>    ("optN2",            click,    2),
        on<&P::waveGenerator,    &WaveGenerator::routeToPositive>    ("optP3",            click,    3),
        on<&P::waveGenerator,    &WaveGenerator::routeToNegative>    ("optN3",            click,    3),
        on<&P::waveGenerator,    &WaveGenerator::routeToPositive>    ("optP4",            click,    4),
        on<&P::waveGenerator,    &WaveGenerator::routeToNegative>    ("optN4",            click,    4),
        on<&P::waveGenerator,    &WaveGenerator::start>              ("cmdGo12",          click,    1),
        on<&P::waveGenerator,    &WaveGenerator::start>              ("cmdGo34",          click,    2),
        on<&P::volume,           &Volume::sliderMoved>               ("ZelvinSlider1",    change,   1),
        on<&P::volume,           &Volume::sliderMoved>               ("ZelvinSlider2",    change,   2),
        on<&P::volume,           &Volume::sliderMoved>               ("ZelvinSlider4",    change,   3),
        on<&P::volume,           &Volume::sliderMoved>               ("ZelvinSlider5",    change,   4),
        on<&P::temperature,      &Temperature::sliderMoved>          ("ZelvinSlider3",    change,   1),
        on<&P::temperature,      &Temperature::sliderMoved>          ("ZelvinSlider6",    change,   2),
        on<&P::temperature,      &Temperature::timerTicked>          ("tmrVirtualTemp12", tick,     1),
        on<&P::temperature,      &Temperature::timerTicked>          ("tmrVirtualTemp34", tick,     2),
        on<&P::amplifierId,      &AmplifierId::picked>               ("Combo1",           click),
        on<&P::amplifierId,      &AmplifierId::keyPressed>           ("Combo1",           keyPress),
        on<&P::informationEntry, &InformationEntry::start>           ("Command1",         click),
        on<&P::informationEntry, &InformationEntry::keyPressed>      ("List1",            keyPress),
    });
    // clang-format on
}

}  // namespace Detail

/// Every notification that the panel handles; all others are left unhandled.
inline constexpr auto kNotifications = Detail::notificationTable();

}  // namespace Orvo
