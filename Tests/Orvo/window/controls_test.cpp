#include <QAbstractButton>
#include <QComboBox>
#include <QTabBar>

#include "window_fixture.h"

namespace Orvo::Window {
namespace {

class ControlsTest : public WindowTest {};

TEST_F(ControlsTest, EveryControlIsWhereTheLayoutHasItAndAsTheStoreSays) {
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        const auto& widget = Layout::describe(id);
        auto* shown = front_.findChild<QWidget*>(
            QLatin1StringView(widget.name.data(), qsizetype(widget.name.size())));
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
    store_[Widgets::OptionRef{idOf("optP2")}].setValue(true);
    store_[Widgets::CheckRef{idOf("chkOnOff12")}].setValue(Widgets::CheckValue::checked);
    store_[Widgets::ButtonRef{idOf("cmdGo12")}].setEnabled(false);
    store_.show(idOf("Command1"), true);
    store_[Widgets::ComboRef{idOf("Combo1")}].setText(u"300");
    settle();
    EXPECT_TRUE(control<QAbstractButton>("optP2").isChecked());
    EXPECT_TRUE(control<QAbstractButton>("chkOnOff12").isChecked());
    EXPECT_FALSE(control("cmdGo12").isEnabled());
    EXPECT_FALSE(control("Command1").isHidden());
    EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), -1);
}

TEST_F(ControlsTest, WhatHoldsForAContainerHoldsForItsContents) {
    store_[Widgets::TabsRef{0}].setTabEnabled(1, false);
    store_.show(idOf("Frame13"), false);
    settle();
    EXPECT_FALSE(control("optLineIn12").isEnabled());
    EXPECT_TRUE(control("optLineIn34").isHidden());
}

TEST_F(ControlsTest, TheKeyboardStopsOnceInAGroupOfOptions) {
    const auto stops = [&] {
        std::string names;
        for (const char* name : {"optP1", "optN1", "optP2", "optN2"}) {
            if (control(name).focusPolicy() == Qt::StrongFocus) names += name;
        }
        return names;
    };
    EXPECT_EQ(stops(), "optP1optN1optP2optN2") << "none is selected yet";
    store_[Widgets::OptionRef{idOf("optN2")}].setValue(true);
    settle();
    EXPECT_EQ(stops(), "optN2");
}

TEST_F(ControlsTest, TheHourglassShowsAtOnce) {
    store_.mousePointer().setPointer(Widgets::Pointer::hourglass);
    EXPECT_EQ(front_.cursor().shape(), Qt::WaitCursor);
    store_.mousePointer().setPointer(Widgets::Pointer::standard);
    EXPECT_EQ(front_.cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace Orvo::Window
