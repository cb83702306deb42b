#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using FreshPanel = PanelTest;

TEST_F(FreshPanel, IsDarkAndUnset) {
    for (Widgets::WidgetId i = 0; i < Layout::kWidgetCount; ++i) {
        const auto& widget = Layout::describe(i);
        const bool isDot = widget.name == "Shape1" || widget.name == "Shape30";
        switch (widget.style.kind) {
            case Layout::Kind::shape:
                EXPECT_EQ(isLit(widget.name), isDot) << widget.name;
                break;
            case Layout::Kind::digit:
                EXPECT_EQ(digits({widget.name}), "_") << widget.name;
                break;
            case Layout::Kind::check:
                EXPECT_FALSE(isChecked(widget.name)) << widget.name;
                break;
            default:
                break;
        }
    }
    for (Integer row = 0; row <= 5; ++row) {
        EXPECT_EQ(caption("lblTestResult(" + std::to_string(row) + ")"), u"-");
        EXPECT_EQ(panel_.chkTest(row), kFalse);
    }
    for (Integer channel = 0; channel <= 4; ++channel) EXPECT_EQ(panel_.Mute(channel), kFalse);
    EXPECT_EQ(panel_.PowerOn(), kFalse);
    EXPECT_EQ(panel_.ReadOnly(), kFalse);
}

TEST_F(FreshPanel, ShowsTheFirstAmplifierConnected) {
    EXPECT_EQ(panel_.IdDevice(), 1);
    for (const auto* name : {"lblAmpId12", "lblAmpId34"}) EXPECT_EQ(caption(name), u"1");
    for (const auto* name : {"lblConnected12", "lblConnected34"}) {
        EXPECT_EQ(caption(name), u"Connected");
    }
    const auto& combo = store_.get<Runtime::StoredCombo>(id("Combo1")).state();
    ASSERT_EQ(combo.items.size(), 99U);
    EXPECT_EQ(combo.items.front(), u"1");
    EXPECT_EQ(combo.items.back(), u"99");
    EXPECT_EQ(combo.text, u"1");
}

TEST_F(FreshPanel, HasTheCommonTabInFrontAndAllTabsEnabled) {
    const auto& tabs = store_.get<Runtime::StoredTabs>(Layout::kTabs.id).state();
    EXPECT_EQ(tabs.current, Layout::kCommonTab);
    EXPECT_EQ(tabs.enabled, std::vector<bool>(3, true));
}

TEST_F(FreshPanel, SelectsThePositiveInputsOfChannels1And3AndOneKilohertz) {
    for (const auto* name : {"optP1", "optP3", "opt1000hz_ch12", "opt1000hz_Ch34"}) {
        EXPECT_TRUE(isSelected(name)) << name;
    }
    EXPECT_EQ(lineColour("lin1p(0)"), Layout::kWhite);
    EXPECT_EQ(lineColour("lin3n(0)"), rgb(100, 100, 100));
    EXPECT_TRUE(isVisible("lin3PSelect"));
    EXPECT_FALSE(isVisible("lin1NSelect"));
}

TEST_F(FreshPanel, ShowsAnEmptyGridOnEveryScope) {
    for (const auto* name : {"Picture1", "Picture2", "Picture3", "Picture4"}) {
        const auto& picture = store_.get<Runtime::StoredPicture>(id(name));
        EXPECT_EQ(picture.width(), 195) << name;
        EXPECT_EQ(picture.height(), 95) << name;
        EXPECT_EQ(picture.state().drawing.size(), 19U) << name;
    }
}

TEST_F(FreshPanel, HidesAndDisablesWhatIsLaidOutSo) {
    for (const auto* name :
         {"Command1", "cmbSerialPort", "Label55", "chkOnOff12Old", "chkOnOff34Old"}) {
        EXPECT_FALSE(store_.isShown(id(name))) << name;
        EXPECT_FALSE(store_.acceptsInput(id(name))) << name;
    }
    EXPECT_TRUE(store_.isShown(id("Combo1")));
    EXPECT_FALSE(store_.acceptsInput(id("Combo1")));
}

TEST_F(FreshPanel, BoundsTheTestSlidersAtAHundredAndTheOthersAtThirty) {
    const auto maximum = [this](const char* name) {
        return store_.get<Runtime::StoredSlider>(id(name)).state().maximum;
    };
    for (const auto* name : {"ZelvinSlider3", "ZelvinSlider6"}) EXPECT_EQ(maximum(name), 100);
    for (const auto* name : {"ZelvinSlider1", "ZelvinSlider2", "ZelvinSlider4", "ZelvinSlider5"}) {
        EXPECT_EQ(maximum(name), 30) << name;
    }
}

TEST_F(FreshPanel, RaisesNothingUntilSomebodyActs) {
    store_.advance(std::chrono::minutes(10));
    EXPECT_EQ(takeLines(), Lines());
}

}  // namespace
}  // namespace Orvo::Tests
