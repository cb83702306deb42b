#include "Orvo/window/spoken/names.h"

#include <array>
#include <cstddef>

#include "Orvo/layout/layout.h"

namespace Orvo::Window {

namespace {

using Widgets::WidgetId;

// A name that the layout doesn't have doesn't compile.
struct Id {
    // NOLINTNEXTLINE(google-explicit-constructor): the tables are names
    consteval Id(const char* name) : id(Layout::findWidget(name).value()) {}
    WidgetId id;
};

// One kind of widget, once for each of so many parts of the amplifier; "%" stands for the part.
template <std::size_t kParts>
struct Row {
    std::array<Id, kParts> widgets;
    const char* says = "";
    const char* unit = "";
};

// clang-format off
constexpr auto kOfPanel = std::to_array<Row<1>>({
    {{"SSTab1"},           "Tabs"},
    {{"Combo1"},           "Amplifier id"},
    {{"cmbSerialPort"},    "Serial port"},
    {{"shpConnected"},     "Link"},
    {{"shpOnOff"},         "On/Off"},
    {{"Shape34"},          "Mute"},
    {{"Shape28"},          "Protection"},
    {{"List1"},            "Internal data"},
    {{"lblTestResult(0)"}, "Temperature test"},
    {{"lblTestResult(1)"}, "Positive power bus test"},
    {{"lblTestResult(2)"}, "Negative power bus test"},
    {{"lblTestResult(3)"}, "Positive aux bus test"},
    {{"lblTestResult(4)"}, "Negative aux bus test"},
    {{"lblTestResult(5)"}, "Mains presence test"},
    {{"cmdOnOff"},         "Power"},
    {{"Command17"},        "Mute all channels"},
    {{"cmdReadInData"},    "Read the internal data"},
    {{"Command1"},         "Reset the log file"},
});

constexpr auto kOfPairs = std::to_array<Row<2>>({
    {{"lblAmpId12",        "lblAmpId34"},        "Amplifier id"},
    {{"lblConnected12",    "lblConnected34"},    "Status"},
    {{"opt100hz_ch12",     "opt100hz_Ch34"},     "100 Hz"},
    {{"opt1000hz_ch12",    "opt1000hz_Ch34"},    "1000 Hz"},
    {{"opt10000hz_ch12",   "opt10000hz_Ch34"},   "10 kHz"},
    {{"optEIAJ_ch12",      "optEIAJ_Ch34"},      "EIAJ (1 kHz)"},
    {{"optLineIn12",       "optLineIn34"},       "Line in"},
    {{"cmdGo12",           "cmdGo34"},           "Start the wave generator"},
    {{"ZelvinSlider3",     "ZelvinSlider6"},     "Test temperature channels %",    "°C"},
    {{"ledTemp12(0)",      "ledTemp34(0)"},      "Temperature channels %",         "°C"},
    {{"Shape6",            "Shape4"},            "Clock channels %"},
    {{"Shape17",           "Shape12"},           "Ready channels %"},
    {{"LED1",              "LED21"},             "Positive power bus channels %",  "V"},
    {{"LED3",              "LED23"},             "Negative power bus channels %",  "V"},
    {{"LED5",              "LED13"},             "Positive aux bus channels %",    "V"},
    {{"LED7",              "LED15"},             "Negative aux bus channels %",    "V"},
    {{"shpMainPresence12", "shpMainPresence34"}, "Mains presence channels %"},
    {{"chkOnOff12",        "chkOnOff34"},        "Power"},
});

constexpr auto kOfChannels = std::to_array<Row<4>>({
    {{"optP1",         "optP2",         "optP3",         "optP4"},         "Positive input channel %"},
    {{"optN1",         "optN2",         "optN3",         "optN4"},         "Negative input channel %"},
    {{"Shape22",       "Shape23",       "Shape19",       "Shape24"},       "Signal presence channel %"},
    {{"Shape18",       "Shape21",       "Shape13",       "Shape14"},       "Protection channel %"},
    {{"LED20",         "LED18",         "LED9",          "LED11"},         "Volume readout channel %", "dB"},
    {{"ZelvinSlider1", "ZelvinSlider2", "ZelvinSlider4", "ZelvinSlider5"}, "Volume channel %", "dB"},
    {{"Shape16",       "Shape15",       "Shape11",       "Shape10"},       "Mute lamp channel %"},
    {{"Command12",     "Command11",     "Command14",     "Command18"},     "Mute channel %"},
    {{"Picture1",      "Picture2",      "Picture3",      "Picture4"},      "Scope channel %"},
});
// clang-format on

constexpr std::array<const char*, 1> kPanel{""};
constexpr std::array<const char*, 2> kPairs{"1 and 2", "3 and 4"};
constexpr std::array<const char*, 4> kChannels{"1", "2", "3", "4"};

struct Said {
    QString name;
    QString unit;
};

template <class Table, class Parts>
bool lookUp(WidgetId id, const Table& table, const Parts& parts, Said& said) {
    for (const auto& row : table) {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (row.widgets[i].id != id) continue;
            said = {QString::fromUtf8(row.says).replace('%', parts[i]),
                    QString::fromUtf8(row.unit)};
            return true;
        }
    }
    return false;
}

Said lookUp(WidgetId id) {
    Said said;
    lookUp(id, kOfPanel, kPanel, said) || lookUp(id, kOfPairs, kPairs, said) ||
        lookUp(id, kOfChannels, kChannels, said);
    return said;
}

}  // namespace

QString nameOf(WidgetId id) { return lookUp(id).name; }
QString unitOf(WidgetId id) { return lookUp(id).unit; }

}  // namespace Orvo::Window
