#include "Runtime/Qt/hints.h"

#include <array>
#include <string_view>

#include <QAbstractButton>
#include <QKeySequence>

#include "Orvo/layout/layout.h"
#include "Runtime/Qt/text.h"

namespace Orvo::Window {

namespace {

struct Hint {
    std::string_view widget;
    const char* says;
    const char* shortcut = "";
};

// A shortcut works on the tab in front only, so twins share theirs. It activates its widget as the
// keyboard does, so where that asks the host for nothing there is none.
constexpr auto kHints = std::to_array<Hint>({
    {"Combo1", "Amplifier id"},
    {"cmbSerialPort", "Serial port"},
    {"List1", "Internal data"},
    {"cmdOnOff", "Power", "Alt+P"},
    {"Command17", "Mute all channels"},
    {"cmdReadInData", "Read the internal data", "Alt+I"},
    {"Command1", "Reset the log file", "Alt+R"},

    {"opt100hz_ch12", "100 Hz"},
    {"opt1000hz_ch12", "1000 Hz"},
    {"opt10000hz_ch12", "10 kHz"},
    {"optEIAJ_ch12", "EIAJ (1 kHz)"},
    {"optLineIn12", "Line in"},
    {"opt100hz_Ch34", "100 Hz"},
    {"opt1000hz_Ch34", "1000 Hz"},
    {"opt10000hz_Ch34", "10 kHz"},
    {"optEIAJ_Ch34", "EIAJ (1 kHz)"},
    {"optLineIn34", "Line in"},
    {"cmdGo12", "Start the wave generator", "Alt+S"},
    {"cmdGo34", "Start the wave generator", "Alt+S"},

    {"optP1", "Channel 1, positive input"},
    {"optN1", "Channel 1, negative input"},
    {"optP2", "Channel 2, positive input"},
    {"optN2", "Channel 2, negative input"},
    {"optP3", "Channel 3, positive input"},
    {"optN3", "Channel 3, negative input"},
    {"optP4", "Channel 4, positive input"},
    {"optN4", "Channel 4, negative input"},

    {"ZelvinSlider1", "Volume of channel 1"},
    {"ZelvinSlider2", "Volume of channel 2"},
    {"ZelvinSlider4", "Volume of channel 3"},
    {"ZelvinSlider5", "Volume of channel 4"},
    {"ZelvinSlider3", "Test temperature of channels 1 and 2"},
    {"ZelvinSlider6", "Test temperature of channels 3 and 4"},
    {"Command12", "Mute channel 1", "Alt+1"},
    {"Command11", "Mute channel 2", "Alt+2"},
    {"Command14", "Mute channel 3", "Alt+3"},
    {"Command18", "Mute channel 4", "Alt+4"},
    {"chkOnOff12", "Power"},
    {"chkOnOff34", "Power"},
});

}  // namespace

void describeTo(QWidget& control, Widgets::WidgetId id) {
    for (const Hint& hint : kHints) {
        if (hint.widget != Layout::describe(id).name) continue;
        const QKeySequence shortcut(hint.shortcut);
        QString tip = hint.says;
        control.setAccessibleName(tip);
        if (!shortcut.isEmpty()) tip += " (" + shortcut.toString(QKeySequence::NativeText) + ")";
        control.setToolTip(tip);
        if (auto* button = qobject_cast<QAbstractButton*>(&control)) button->setShortcut(shortcut);
    }
}

}  // namespace Orvo::Window
