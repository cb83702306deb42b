#include <functional>

#include "Orvo/monitor/volume.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Monitor = PanelTest;
using Names = std::vector<std::string_view>;

TEST_F(Monitor, LightsExactlyTheLampOfAFlagAndIndex) {
    using Set = void (MarvaneAssistantInterface::*)(Integer, Boolean);
    using I = MarvaneAssistantInterface;
    const struct {
        Set set;
        Integer index;
        std::string lamp;
    } kRows[] = {
        {&I::Protection, 0, "Shape28"},
        {&I::Protection, 1, "Shape18"},
        {&I::Protection, 2, "Shape21"},
        {&I::Protection, 3, "Shape13"},
        {&I::Protection, 4, "Shape14"},
        {&I::Protection, 5, ""},
        {&I::Protection, -1, ""},
        {&I::Signal, 0, ""},
        {&I::Signal, 1, "Shape22"},
        {&I::Signal, 2, "Shape23"},
        {&I::Signal, 3, "Shape19"},
        {&I::Signal, 4, "Shape24"},
        {&I::Signal, 5, ""},
        {&I::Clock, 0, ""},
        {&I::Clock, 1, "Shape6"},
        {&I::Clock, 2, "Shape4"},
        {&I::Clock, 3, ""},
        {&I::Ready, 1, "Shape17"},
        {&I::Ready, 2, "Shape12"},
        {&I::Ready, -32768, ""},
    };
    const auto lit = [this] {
        std::string names;
        for (const auto& widget : Layout::kWidgets) {
            const bool isLamp = widget.style.kind == Layout::Kind::shape && !widget.style.isSolid;
            if (isLamp && isLit(widget.name)) names += widget.name;
        }
        return names;
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.lamp + ' ' + std::to_string(row.index));
        (panel_.*row.set)(row.index, Boolean(Integer{1}));
        EXPECT_EQ(lit(), row.lamp);
        (panel_.*row.set)(row.index, kTrue);
        (panel_.*row.set)(row.index, kFalse);
        EXPECT_EQ(lit(), "");
    }
}

TEST_F(Monitor, ShowsTheFirstDigitsOfAValue) {
    const struct {
        const char* label;
        std::function<void(MarvaneAssistant&)> call;
        Names widgets;
        std::string shown;
        Long error;
    } kRows[] = {
        {"zero", [](auto& p) { p.VPPower(1, 0); }, {"LED1", "LED2", "LED25"}, "000", 0},
        {"padded", [](auto& p) { p.VNAux(2, 48); }, {"LED15", "LED16", "LED32"}, "048", 0},
        {"whole", [](auto& p) { p.VPAux(1, 999); }, {"LED5", "LED6", "LED27"}, "999", 0},
        {"too long", [](auto& p) { p.VPAux(2, 1234); }, {"LED13", "LED14", "LED31"}, "123", 0},
        {"pair 2", [](auto& p) { p.VPPower(2, 7); }, {"LED21", "LED22", "LED29"}, "007", 0},
        {"negative rail", [](auto& p) { p.VNPower(2, 90); }, {"LED23", "LED24", "LED30"}, "090", 0},
        {"negative aux", [](auto& p) { p.VNAux(1, 15); }, {"LED7", "LED8", "LED28"}, "015", 0},
        {"-5", [](auto& p) { p.VNPower(1, -5); }, {"LED3", "LED4", "LED26"}, "0__", 13},
        {"-10", [](auto& p) { p.VNPower(1, -10); }, {"LED3", "LED4", "LED26"}, "0__", 13},
        {"no pair", [](auto& p) { p.VNPower(5, -5); }, {"LED3", "LED4", "LED26"}, "0__", 0},
        {"degrees",
         [](auto& p) { p.Temperature(1, 45); },
         {"ledTemp12(0)", "ledTemp12(1)", "ledTemp12(2)"},
         "045",
         0},
        {"-1 degree",
         [](auto& p) { p.Temperature(2, -1); },
         {"ledTemp34(0)", "ledTemp34(1)", "ledTemp34(2)"},
         "0__",
         13},
        {"no such pair",
         [](auto& p) { p.Temperature(3, -1); },
         {"ledTemp34(0)", "ledTemp34(1)", "ledTemp34(2)"},
         "0__",
         0},
    };
    for (const auto& row : kRows) {
        EXPECT_EQ(errorOf([&] { row.call(panel_); }), row.error) << row.label;
        EXPECT_EQ(digits(row.widgets), row.shown) << row.label;
    }
}

TEST_F(Monitor, ShowsAVolumesMagnitudeAndSign) {
    const struct {
        Integer channel;
        Integer volume;
        Long error;
        Names digits;
        const char* sign;
        std::string shown;
        String caption;
    } kRows[] = {
        {1, 0, 0, {"LED20", "LED19"}, "Label76", "00", u""},
        {2, -12, 0, {"LED18", "LED17"}, "Label30", "12", u"-"},
        {2, 12, 0, {"LED18", "LED17"}, "Label30", "12", u"-"},
        {3, 123, 0, {"LED9", "LED10"}, "Label29", "12", u"-"},
        {4, 5, 0, {"LED11", "LED12"}, "Label10", "05", u"-"},
        {5, 7, 0, {"LED11", "LED12"}, "Label10", "05", u"-"},
        {5, -32768, 6, {"LED11", "LED12"}, "Label10", "05", u"-"},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.volume);
        EXPECT_EQ(errorOf([&] { panel_.Volume(row.channel, row.volume); }), row.error);
        EXPECT_EQ(digits(row.digits), row.shown);
        EXPECT_EQ(caption(row.sign), row.caption);
    }
}

TEST(Volume, AndPositionStandForEachOther) {
    EXPECT_EQ(sliderPosition(0), 15);
    EXPECT_EQ(sliderPosition(7), 11);
    EXPECT_EQ(sliderPosition(-3), 16);
    EXPECT_EQ(sliderPosition(-32737), 16383);
    for (Integer volume = -30; volume <= 30; volume += 2) {
        EXPECT_EQ(volumeAt(sliderPosition(volume)), volume);
        EXPECT_EQ(volumeAt(sliderPosition(static_cast<Integer>(volume - 1))), volume);
    }
    for (const Integer volume : {Integer{32767}, Integer{-32738}, Integer{-32768}}) {
        EXPECT_EQ(errorOf([&] { sliderPosition(volume); }), 6) << volume;
    }
    EXPECT_EQ(errorOf([] { volumeAt(-16400); }), 6);
}

TEST_F(Monitor, MovesAndAsksTheSliderOfAChannel) {
    panel_.VolumeSlider(1, 30);
    panel_.VolumeSlider(3, 7);
    panel_.VolumeSlider(4, -100);
    panel_.VolumeSlider(9, 4);
    EXPECT_EQ(position("ZelvinSlider1"), 0);
    EXPECT_EQ(position("ZelvinSlider4"), 11);
    EXPECT_EQ(position("ZelvinSlider5"), 65);
    EXPECT_EQ(errorOf([&] { panel_.VolumeSlider(9, 32767); }), 6);
    person_.hold(id("ZelvinSlider5"));
    for (Integer channel = -1; channel <= 7; ++channel) {
        EXPECT_EQ(panel_.VolumeSliderButtonDown(channel), Boolean(channel == 4)) << channel;
    }
    EXPECT_EQ(takeLines(), Lines());
}

TEST_F(Monitor, LetsGoOfASliderThatTakesNoInputAnyMore) {
    using Change = std::function<void(bool isBack)>;
    const std::pair<const char*, Change> changes[] = {
        {"hidden", [&](bool isBack) { store_.show(id("ZelvinSlider5"), isBack); }},
        {"container hidden", [&](bool isBack) { store_.show(id("Frame3"), isBack); }},
        {"disabled", [&](bool isBack) { store_.enable(id("ZelvinSlider5"), isBack); }},
        {"container disabled", [&](bool isBack) { store_.enable(id("Frame3"), isBack); }},
        {"tab disabled", [&](bool isBack) { panel_.AbilitaSlave(isBack); }},
    };
    for (const auto& [what, change] : changes) {
        person_.hold(id("ZelvinSlider5"));
        EXPECT_EQ(panel_.VolumeSliderButtonDown(4), kTrue) << what;
        change(false);
        change(true);
        EXPECT_EQ(panel_.VolumeSliderButtonDown(4), kFalse) << what;
    }
}

TEST_F(Monitor, SumsUpTheMuteStateOfTheChannelsThereAre) {
    panel_.Mute(1, kTrue);
    panel_.Mute(2, kTrue);
    EXPECT_EQ(panel_.Mute(0), kFalse);
    panel_.AbilitaSlave(kFalse);
    EXPECT_EQ(panel_.Mute(0), kFalse);
    panel_.Mute(9, kTrue);
    EXPECT_EQ(panel_.Mute(0), kTrue);
    panel_.AbilitaSlave(kTrue);
    panel_.Mute(2, kFalse);
    EXPECT_EQ(panel_.Mute(0), kTrue);
    EXPECT_EQ(panel_.Mute(2), kFalse);
    for (Integer channel = 2; channel <= 4; ++channel) panel_.Mute(channel, kTrue);
    EXPECT_EQ(panel_.Mute(0), kTrue);
    panel_.Mute(0, kFalse);
    for (Integer channel = -1; channel <= 5; ++channel) {
        EXPECT_EQ(panel_.Mute(channel), kFalse) << channel;
    }
}

TEST_F(Monitor, RepeatsATestTemperatureWhileItsTimerRuns) {
    using std::chrono_literals::operator""ms;
    person_.slide(id("ZelvinSlider6"), 40);
    store_.advance(3000ms);
    EXPECT_EQ(takeLines(), (Lines{"SetTemp 2 40", "SetTemp 2 40", "SetTemp 2 40"}));
    panel_.TimerVirtualTemp34(kFalse);
    person_.slide(id("ZelvinSlider3"), 7);
    store_.advance(1500ms);
    EXPECT_EQ(takeLines(), (Lines{"SetTemp 1 7", "SetTemp 1 7"}));
    person_.slide(id("ZelvinSlider6"), 41);
    person_.slide(id("ZelvinSlider3"), 0);
    store_.advance(3000ms);
    EXPECT_EQ(takeLines(), (Lines{"SetTemp 2 41", "SetTemp 1 0"}));
    panel_.TimerVirtualTemp34(Boolean(Integer{4}));
    store_.advance(1499ms);
    EXPECT_EQ(takeLines(), Lines());
    store_.advance(1ms);
    EXPECT_EQ(takeLines(), Lines{"SetTemp 2 41"});
}

}  // namespace
}  // namespace Orvo::Tests
