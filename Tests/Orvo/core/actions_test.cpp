#include <algorithm>
#include <functional>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Runtime::MouseButton;
using Runtime::ReleasedWhere;

using Step = std::function<void(Runtime::UserInput& person)>;

Step click(const char* widget, MouseButton button = MouseButton::left) {
    return [=](Runtime::UserInput& person) { person.click(id(widget), button); };
}
Step rightClick(const char* widget) { return click(widget, MouseButton::right); }
Step dragOff(const char* widget) {
    return [=](Runtime::UserInput& person) {
        person.press(id(widget));
        person.release(id(widget), MouseButton::left, ReleasedWhere::elsewhere);
    };
}
Step activate(const char* widget) {
    return [=](Runtime::UserInput& person) { person.activate(id(widget)); };
}
Step type(const char* widget, Integer code) {
    return [=](Runtime::UserInput& person) { person.type(id(widget), code); };
}
Step slide(const char* widget, int position) {
    return [=](Runtime::UserInput& person) { person.slide(id(widget), position); };
}
Step pick(const char* widget, const char16_t* item) {
    return [=](Runtime::UserInput& person) { person.pick(id(widget), item); };
}

using Actions = PanelTest;

TEST_F(Actions, RaiseTheirEvents) {
    const struct {
        const char* label;
        std::vector<Step> steps;
        Lines raised;
    } kRows[] = {
        // clang-format off
        {"power clicked",            {click("cmdOnOff")},              {"OnOff"}},
        {"power activated",          {activate("cmdOnOff")},           {"OnOff"}},
        {"space on power",           {type("cmdOnOff", 32)},           {"OnOff"}},
        {"power right-clicked",      {rightClick("cmdOnOff")},         {}},
        {"power dragged off",        {dragOff("cmdOnOff")},            {}},
        {"pair power clicked",       {click("chkOnOff12")},            {"OnOff"}},
        {"pair power right-clicked", {rightClick("chkOnOff34")},       {"OnOff"}},
        {"pair power dragged off",   {dragOff("chkOnOff12")},          {"OnOff"}},
        {"pair power activated",     {activate("chkOnOff12")},         {}},
        {"mute 1",                   {click("Command12")},             {"Mute 1"}},
        {"mute 2",                   {click("Command11")},             {"Mute 2"}},
        {"mute 3 twice",             {click("Command14"), click("Command14")}, {"Mute 3", "Mute 3"}},
        {"mute 4",                   {activate("Command18")},          {"Mute 4"}},
        {"mute all",                 {click("Command17")},             {"Mute 0"}},
        {"mute all right-clicked",   {rightClick("Command17")},        {"Mute 0"}},
        {"mute all activated",       {activate("Command17")},          {}},
        {"space on mute all",        {type("Command17", 32)},          {}},
        {"internal data",            {click("cmdReadInData")},         {"DownLoad"}},
        {"volume 4",                 {slide("ZelvinSlider5", 11)},     {"VolumeChange 4 8"}},
        {"volume 1 beyond its end",  {slide("ZelvinSlider1", 99)},     {"VolumeChange 1 -30"}},
        {"volume 2 where it is",     {slide("ZelvinSlider2", -4)},     {}},
        {"test temperature to 0",    {slide("ZelvinSlider3", 40), slide("ZelvinSlider3", 0)},
                                                                       {"SetTemp 1 40", "SetTemp 1 0"}},
        {"start 12",                 {click("cmdGo12")},               {"WaveForm 1 1 1"}},
        {"start 34",                 {click("cmdGo34")},               {"WaveForm 3 1 1"}},
        {"10 kHz to negative 2",     {click("opt10000hz_ch12"), click("optN2"), click("cmdGo12")},
                                                                       {"WaveForm 2 2 2"}},
        {"EIAJ is not 1 kHz",        {click("optEIAJ_Ch34"), click("optP4"), click("cmdGo34")},
                                                                       {"WaveForm 4 3 1"}},
        {"line in",                  {click("optLineIn12"), activate("cmdGo12")}, {"WaveForm 1 4 1"}},
        {"hidden entry button",      {click("Command1")},              {}},
        {"the disabled id list",     {pick("Combo1", u"7")},           {}},
        {"another key in the log",   {type("List1", 'r')},             {}},
        {"a label",                  {click("Label59")},               {}},
        // clang-format on
    };
    for (const auto& row : kRows) {
        const auto bench = makeBench();
        Lines raised;
        const auto connection =
            bench->panel().connect([&](Long dispatchId, std::span<Value> arguments) {
                raised.push_back(lineOf(dispatchId, arguments));
            });
        for (const Step& step : row.steps) step(bench->store().input());
        EXPECT_EQ(raised, row.raised) << row.label;
    }
}

using PowerState = PanelTest;

TEST_F(PowerState, FollowsTheHostOnAllItsWidgets) {
    for (const Boolean value : {Boolean(true), Boolean(Integer{1}), Boolean(false)}) {
        SCOPED_TRACE(value.raw());
        const bool on = bool(value);
        panel_.Connected(value);
        panel_.PowerOn(value);
        panel_.MainPresence(value);
        for (const auto* name :
             {"shpConnected", "shpOnOff", "shpMainPresence12", "shpMainPresence34"}) {
            EXPECT_EQ(isLit(name), on) << name;
        }
        for (const auto* name : {"lblConnected12", "lblConnected34"}) {
            EXPECT_EQ(caption(name), on ? u"Connected" : u"Disconnected");
            EXPECT_EQ(colour(name), on ? rgb(0, 200, 0) : rgb(250, 0, 0));
        }
        for (const auto* name : {"chkOnOff12", "chkOnOff34"}) EXPECT_EQ(isChecked(name), on);
        EXPECT_EQ(panel_.PowerOn(), Boolean(on));
    }
    EXPECT_EQ(takeLines(), Lines());
}

TEST_F(PowerState, HasTheHostsAnswerAsTheLastWord) {
    const auto answer = panel_.connect([&](Long id, std::span<Value>) {
        if (id == 1) panel_.PowerOn(kTrue);
    });
    person_.click(id("chkOnOff12"));
    EXPECT_TRUE(isChecked("chkOnOff12"));
    person_.click(id("chkOnOff12"));
    EXPECT_TRUE(isChecked("chkOnOff12"));
    EXPECT_TRUE(isLit("shpOnOff"));
    EXPECT_EQ(takeLines(), (Lines{"OnOff", "OnOff"}));
}

TEST_F(PowerState, FlipsACheckBoxFromTheKeyboardUntilTheHostSaysOtherwise) {
    person_.activate(id("chkOnOff12"));
    EXPECT_TRUE(isChecked("chkOnOff12"));
    panel_.PowerOn(kFalse);
    EXPECT_FALSE(isChecked("chkOnOff12"));
}

TEST_F(PowerState, LeavesASecondPairAsItWasBehindItsDisabledTab) {
    panel_.Signal(3, kTrue);
    panel_.AbilitaSlave(kFalse);
    person_.click(id("Command14"));
    EXPECT_EQ(takeLines(), Lines());
    panel_.AbilitaSlave(kTrue);
    EXPECT_TRUE(isLit("Shape19"));
    person_.click(id("Command14"));
    EXPECT_EQ(takeLines(), Lines{"Mute 3"});
}

using Routing = PanelTest;

TEST_F(Routing, HighlightsOneRouteOfItsPairAndLeavesTheOtherPairAlone) {
    const struct {
        const char* option;
        const char* route;
        const char* selector;
        const char* channelLine;
    } kRows[] = {
        {"optN1", "lin1n", "lin1NSelect", "lin1"}, {"optP2", "lin2p", "lin2PSelect", "lin2"},
        {"optN2", "lin2n", "lin2NSelect", "lin2"}, {"optP1", "lin1p", "lin1PSelect", "lin1"},
        {"optN3", "lin3n", "lin3NSelect", "lin3"}, {"optP4", "lin4p", "lin4Pselect", "Lin4"},
        {"optN4", "lin4n", "lin4NSelect", "Lin4"}, {"optP3", "lin3p", "lin3PSelect", "lin3"},
    };
    const auto lit = [this](int tab) {
        std::vector<std::string> names;
        for (const auto& widget : Layout::kWidgets) {
            const bool isRoute = widget.name.starts_with("lin") || widget.name.starts_with("Lin4");
            if (widget.tab != tab || !isRoute || !isVisible(widget.name)) continue;
            if (lineColour(widget.name) == rgb(255, 255, 255)) names.emplace_back(widget.name);
        }
        std::sort(names.begin(), names.end());
        return names;
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.option);
        const int tab = Layout::describe(id(row.selector)).tab;
        const auto other = lit(3 - tab);
        person_.click(id(row.option));
        std::vector<std::string> expected{row.selector, row.channelLine};
        for (int i = 0; i < 5; ++i) {
            expected.push_back(row.route + ("(" + std::to_string(i) + ")"));
        }
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(lit(tab), expected);
        EXPECT_EQ(lit(3 - tab), other);
    }
}

}  // namespace
}  // namespace Orvo::Tests
