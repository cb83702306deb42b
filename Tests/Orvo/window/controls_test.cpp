#include <QAbstractButton>
#include <QComboBox>
#include <QTabBar>

#include "Orvo/window/controls/value_bubble.h"
#include "window_fixture.h"

namespace Orvo::Window {
namespace {

class ControlsTest : public WindowTest {};

TEST_F(ControlsTest, EveryControlIsWhereTheLayoutHasItAndAsTheStoreSays) {
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        const auto& widget = Layout::describe(id);
        const auto* shown = front_.control(id);
        if (shown == nullptr) continue;
        SCOPED_TRACE(widget.name);
        EXPECT_EQ(shown->geometry(), Scale(1).rect(id));
        EXPECT_EQ(shown->isVisibleTo(shown->parentWidget()), store_.isShown(id));
        EXPECT_EQ(shown->isEnabled(), store_.acceptsInput(id));
        const bool hasWords = widget.style.kind == Layout::Kind::picture ||
                              !shown->accessibleName().isEmpty() || !store_.isShown(id);
        EXPECT_TRUE(hasWords) << "nothing to read out";
    }
}

TEST_F(ControlsTest, AControlFollowsTheStore) {
    toTab(1);
    store_[channel(2).positive.option].setValue(true);
    store_[pair(1).powerCheck].setValue(Widgets::CheckValue::checked);
    store_[pair(1).startButton].setEnabled(false);
    store_.show(kCommon.resetLogButton, true);
    store_[kCommon.amplifierIds].setText(u"300");
    settle();
    EXPECT_TRUE(control<QAbstractButton>(channel(2).positive.option).isChecked());
    EXPECT_TRUE(control<QAbstractButton>(pair(1).powerCheck).isChecked());
    EXPECT_FALSE(control(pair(1).startButton).isEnabled());
    EXPECT_FALSE(control(kCommon.resetLogButton).isHidden());
    EXPECT_EQ(control<QComboBox>(kCommon.amplifierIds).currentIndex(), -1);
}

TEST_F(ControlsTest, WhatHoldsForAContainerHoldsForItsContents) {
    store_[Widgets::TabsRef{0}].setTabEnabled(1, false);
    store_.show(Layout::describe(pair(2).waves[4]).container, false);
    settle();
    EXPECT_FALSE(control(pair(1).waves[4]).isEnabled());
    EXPECT_TRUE(control(pair(2).waves[4]).isHidden());
}

TEST_F(ControlsTest, TheKeyboardStopsOnceInAGroupOfOptions) {
    const auto stops = [&] {
        std::vector<WidgetId> options;
        for (const auto option : {channel(1).positive.option, channel(1).negative.option,
                                  channel(2).positive.option, channel(2).negative.option}) {
            if (control(option).focusPolicy() == Qt::StrongFocus) options.push_back(option);
        }
        return options;
    };
    EXPECT_EQ(stops().size(), 4U) << "none is selected yet";
    store_[channel(2).negative.option].setValue(true);
    settle();
    EXPECT_EQ(stops(), std::vector<WidgetId>{channel(2).negative.option});
}

TEST_F(ControlsTest, ABubbleSaysAFadersValueBesideItsCapWhileItIsHeld) {
    toTab(1);
    store_[pair(1).testSlider].setMaximum(100);
    const auto bubble = [&] { return front_.findChild<ValueBubble*>(); };
    const struct {
        WidgetId slider;
        int position;
        const char* said;
        int above;
        const char* saidAbove;
    } kCases[] = {
        {channel(1).volumeSlider, 13, "4 dB", 4, "22 dB"},
        {channel(2).volumeSlider, 20, "-10 dB", 0, "30 dB"},
        {pair(1).testSlider, 37, "37 °C", 90, "90 °C"},
    };
    for (const auto& [slider, position, said, above, saidAbove] : kCases) {
        const auto moveTo = [&, slider = slider](int to) {
            store_.perform(Runtime::Deed::move(slider, to));
            settle();
        };
        moveTo(position);
        EXPECT_EQ(bubble(), nullptr) << "nobody holds it";
        store_.perform(Runtime::Deed::hold(slider));
        settle();
        ASSERT_NE(bubble(), nullptr) << said;
        EXPECT_EQ(bubble()->value(), said);
        const QRect before = bubble()->geometry();
        EXPECT_TRUE(front_.rect().contains(before));
        moveTo(above);
        EXPECT_EQ(bubble()->value(), saidAbove);
        EXPECT_LT(bubble()->geometry().bottom(), before.bottom());
        store_.perform(Runtime::Deed::drop(slider));
        settle();
    }
    EXPECT_EQ(bubble(), nullptr);
}

TEST_F(ControlsTest, TheHourglassShowsAtOnce) {
    store_.mousePointer().setPointer(Widgets::Pointer::hourglass);
    EXPECT_EQ(front_.cursor().shape(), Qt::WaitCursor);
    store_.mousePointer().setPointer(Widgets::Pointer::standard);
    EXPECT_EQ(front_.cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace Orvo::Window
