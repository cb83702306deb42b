#include "Orvo/window/spoken/names.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Orvo/layout/roles.h"
#include "Orvo/values/indexed.h"

namespace Orvo::Window {

namespace {

using namespace Layout;
using Widgets::WidgetId;

// What is said of one widget; "%" stands for the part of the amplifier that it belongs to.
struct Row {
    WidgetId widget{};
    const char* name = "";
    const char* unit = "";
    const char* keys = "";
    const char* part = "";
};

template <std::size_t kCount>
constexpr auto of(const char* part, std::array<Row, kCount> rows) {
    for (Row& row : rows) row.part = part;
    return rows;
}

// A shortcut works on the tab in front only, so twins share theirs. It activates its widget as the
// keyboard does, so where that asks the host for nothing there is none.
// clang-format off
constexpr auto kOfPanel = std::to_array<Row>({
    {kTabs,                      "Tabs"},
    {kCommon.amplifierIds,       "Amplifier id"},
    {kCommon.serialPorts,        "Serial port"},
    {kCommon.linkLamp,           "Link"},
    {kCommon.powerLamp,          "On/Off"},
    {kCommon.muteLamp,           "Mute"},
    {kCommon.protectionLamp,     "Protection"},
    {kCommon.log,                "Internal data"},
    {kCommon.testResults.at(0),  "Temperature test"},
    {kCommon.testResults.at(1),  "Positive power bus test"},
    {kCommon.testResults.at(2),  "Negative power bus test"},
    {kCommon.testResults.at(3),  "Positive aux bus test"},
    {kCommon.testResults.at(4),  "Negative aux bus test"},
    {kCommon.testResults.at(5),  "Mains presence test"},
    {kCommon.powerButton,        "Power",                  "", "Alt+P"},
    {kCommon.muteButton,         "Mute all channels"},
    {kCommon.internalDataButton, "Read the internal data", "", "Alt+I"},
    {kCommon.resetLogButton,     "Reset the log file",     "", "Alt+R"},
});

constexpr auto ofPair(Integer number, const Pair& pair) {
    return of(number == 1 ? "1 and 2" : "3 and 4", std::to_array<Row>({
        {pair.amplifierId,             "Amplifier id"},
        {pair.linkText,                "Status"},
        {pair.waves[0],                "100 Hz"},
        {pair.waves[1],                "1000 Hz"},
        {pair.waves[2],                "10 kHz"},
        {pair.waves[3],                "EIAJ (1 kHz)"},
        {pair.waves[4],                "Line in"},
        {pair.startButton,             "Start the wave generator",      "", "Alt+S"},
        {pair.testSlider,              "Test temperature channels %",   "°C"},
        {pair.temperature.places[0],   "Temperature channels %",        "°C"},
        {pair.clockLamp,               "Clock channels %"},
        {pair.readyLamp,               "Ready channels %"},
        {pair.positivePower.places[0], "Positive power bus channels %", "V"},
        {pair.negativePower.places[0], "Negative power bus channels %", "V"},
        {pair.positiveAux.places[0],   "Positive aux bus channels %",   "V"},
        {pair.negativeAux.places[0],   "Negative aux bus channels %",   "V"},
        {pair.mainsLamp,               "Mains presence channels %"},
        {pair.powerCheck,              "Power"},
    }));
}

constexpr auto ofChannel(Integer number, const Channel& channel) {
    constexpr std::array kNumbers{"1", "2", "3", "4"};
    return of(kNumbers[std::size_t(number - 1)], std::to_array<Row>({
        {channel.positive.option,  "Positive input channel %"},
        {channel.negative.option,  "Negative input channel %"},
        {channel.signalLamp,       "Signal presence channel %"},
        {channel.protectionLamp,   "Protection channel %"},
        {channel.volume.places[0], "Volume readout channel %", "dB"},
        {channel.volumeSlider,     "Volume channel %",         "dB"},
        {channel.muteLamp,         "Mute lamp channel %"},
        {channel.muteButton,       "Mute channel %",           "", "Alt+%"},
        {channel.scope,            "Scope channel %"},
    }));
}
// clang-format on

constexpr auto kRows = joined(kOfPanel, ofEach(kPairs, ofPair), ofEach(kChannels, ofChannel));

QString textOf(WidgetId widget, const char* Row::*text) {
    const auto* row = std::ranges::find(kRows, widget, &Row::widget);
    if (row == kRows.end()) return {};
    return QString::fromUtf8(row->*text).replace('%', row->part);
}

}  // namespace

QString nameOf(WidgetId id) { return textOf(id, &Row::name); }
QString unitOf(WidgetId id) { return textOf(id, &Row::unit); }
QString keysOf(WidgetId id) { return textOf(id, &Row::keys); }

}  // namespace Orvo::Window
