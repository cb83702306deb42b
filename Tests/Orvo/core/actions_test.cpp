#include <algorithm>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Runtime::MouseButton;
using Runtime::ReleasedWhere;

struct Action {
    const char* label;
    void (*act)(Runtime::UserInput& person);
    std::vector<std::string> raised{};
};

void PrintTo(const Action& action, std::ostream* out) { *out << action.label; }

class Actions : public PanelTest, public testing::WithParamInterface<Action> {};

TEST_P(Actions, RaiseTheirEvents) {
    GetParam().act(person_);
    EXPECT_EQ(takeLines(), GetParam().raised);
}

#define PERSON [](Runtime::UserInput & person)

INSTANTIATE_TEST_SUITE_P(
    OfAPerson, Actions,
    testing::Values(
        Action{"power clicked", PERSON { person.click(id("cmdOnOff"));
}  // namespace
, { "OnOff" }
}  // namespace Orvo::Tests
, Action{"power activated", PERSON{person.activate(id("cmdOnOff"));
}
, { "OnOff" }
}
, Action{"space on power", PERSON{person.type(id("cmdOnOff"), 32);
}
, { "OnOff" }
}
, Action{"power right-clicked", PERSON{person.click(id("cmdOnOff"), MouseButton::right);
}
}
, Action{"power dragged off",
         PERSON{person.release(id("cmdOnOff"), MouseButton::left, ReleasedWhere::elsewhere);
}
}
, Action{"pair power clicked", PERSON{person.click(id("chkOnOff12"));
}
, { "OnOff" }
}
, Action{"pair power right-clicked", PERSON{person.click(id("chkOnOff34"), MouseButton::right);
}
, { "OnOff" }
}
, Action{"pair power dragged off",
         PERSON{person.release(id("chkOnOff12"), MouseButton::left, ReleasedWhere::elsewhere);
}
, { "OnOff" }
}
, Action{"pair power activated", PERSON{person.activate(id("chkOnOff12"));
}
}
, Action{"mute 1", PERSON{person.click(id("Command12"));
}
, { "Mute 1" }
}
, Action{"mute 2", PERSON{person.click(id("Command11"));
}
, { "Mute 2" }
}
, Action{"mute 3 twice", PERSON{person.click(id("Command14"));
person.click(id("Command14"));
}
, { "Mute 3", "Mute 3" }
}
, Action{"mute 4", PERSON{person.activate(id("Command18"));
}
, { "Mute 4" }
}
, Action{"mute all", PERSON{person.click(id("Command17"));
}
, { "Mute 0" }
}
, Action{"mute all right-clicked", PERSON{person.click(id("Command17"), MouseButton::right);
}
, { "Mute 0" }
}
, Action{"mute all activated", PERSON{person.activate(id("Command17"));
}
}
, Action{"internal data", PERSON{person.click(id("cmdReadInData"));
}
, { "DownLoad" }
}
, Action{"volume 4 up", PERSON{person.slide(id("ZelvinSlider5"), 11);
}
, { "VolumeChange 4 8" }
}
, Action{"volume 1 beyond its end", PERSON{person.slide(id("ZelvinSlider1"), 99);
}
, { "VolumeChange 1 -30" }
}
, Action{"volume where it is", PERSON{person.slide(id("ZelvinSlider2"), -4);
}
}
, Action{"test temperature to 0", PERSON{person.slide(id("ZelvinSlider3"), 40);
person.slide(id("ZelvinSlider3"), 0);
}
, { "SetTemp 1 40", "SetTemp 1 0" }
}
, Action{"start 12", PERSON{person.click(id("cmdGo12"));
}
, { "WaveForm 1 1 1" }
}
, Action{"start 34", PERSON{person.click(id("cmdGo34"));
}
, { "WaveForm 3 1 1" }
}
, Action{"10 kHz to negative 2", PERSON{person.click(id("opt10000hz_ch12"));
person.click(id("optN2"));
person.click(id("cmdGo12"));
}
, { "WaveForm 2 2 2" }
}
, Action{"EIAJ is not 1 kHz", PERSON{person.click(id("optEIAJ_Ch34"));
person.click(id("optP4"));
person.click(id("cmdGo34"));
}
, { "WaveForm 4 3 1" }
}
, Action{"line in", PERSON{person.click(id("optLineIn12"));
person.activate(id("cmdGo12"));
}
, { "WaveForm 1 4 1" }
}
, Action{"hidden entry button", PERSON{person.click(id("Command1"));
}
}
, Action{"pick in the disabled id list", PERSON{person.pick(id("Combo1"), u"7");
}
}
, Action{"other keys in the log", PERSON{person.type(id("List1"), 'r');
}
}
, Action{"a label", PERSON{person.click(id("Label59"));
}
}));

#undef PERSON

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
