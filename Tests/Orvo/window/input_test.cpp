#include <functional>
#include <optional>

#include <QComboBox>
#include <QShortcut>
#include <QTabBar>
#include <QWheelEvent>

#include "window_fixture.h"

namespace Orvo::Window {
namespace {

using Gesture = std::function<void(QWidget&)>;

Gesture click(Qt::MouseButton button) {
    return [=](QWidget& widget) { QTest::mouseClick(&widget, button); };
}

Gesture key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
    return [=](QWidget& widget) {
        widget.setFocus();
        QTest::keyClick(&widget, code, modifiers);
    };
}

Gesture wheel(bool isFocused) {
    return [=](QWidget& widget) {
        if (isFocused) widget.setFocus();
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    };
}

void pressAndReleaseBeside(QWidget& widget) {
    QTest::mousePress(&widget, Qt::LeftButton);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {-20, -20});
}

void dragUp(QWidget& widget) {
    const QPoint top(widget.width() / 2, 9);  // where a volume slider's cap is at first
    QTest::mousePress(&widget, Qt::LeftButton, {}, top);
    QTest::mouseMove(&widget, top + QPoint(0, 40));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, top + QPoint(0, 40));
}

void clickGroove(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.width() / 2, widget.height() - 4});
}

struct InputRow {
    const char* label;
    WidgetId widget;
    Gesture gesture;
    std::vector<std::string> heard;
    std::optional<WidgetId> from{};  // another widget
};

class InputTest : public WindowTest {};

TEST_F(InputTest, WhatAPersonDoesReachesThePanel) {
    const InputRow rows[] = {
        {"left click", kCommon.powerButton, click(Qt::LeftButton), {"click", "release"}},
        {"right click", kCommon.powerButton, click(Qt::RightButton), {"release"}},
        {"middle click", pair(1).powerCheck, click(Qt::MiddleButton), {"release"}},
        {"dragged off", pair(1).powerCheck, pressAndReleaseBeside, {"release"}},
        {"click on a check box", pair(1).powerCheck, click(Qt::LeftButton), {"click", "release"}},
        {"click on an option",
         channel(1).negative.option,
         click(Qt::LeftButton),
         {"click", "release"}},
        {"space", kCommon.powerButton, key(Qt::Key_Space), {"key32", "click"}},
        {"enter", kCommon.powerButton, key(Qt::Key_Return), {"key13", "click"}},
        {"space on a check box", pair(1).powerCheck, key(Qt::Key_Space), {"key32", "click"}},
        {"enter on a check box", pair(1).powerCheck, key(Qt::Key_Return), {}},
        {"arrow to the next option",
         channel(1).negative.option,
         key(Qt::Key_Down),
         {"click"},
         channel(2).positive.option},
        {"arrow round the end",
         channel(2).negative.option,
         key(Qt::Key_Down),
         {"click"},
         channel(1).positive.option},
        {"arrow back",
         channel(2).negative.option,
         key(Qt::Key_Up),
         {"click"},
         channel(2).positive.option},
        {"shortcut", kCommon.log, key(Qt::Key_P, Qt::AltModifier), {"click"}, kCommon.powerButton},
        {"shortcut of the tab in front",
         pair(2).startButton,
         key(Qt::Key_S, Qt::AltModifier),
         {"click"}},
        {"Ctrl+R in the log", kCommon.log, key(Qt::Key_R, Qt::ControlModifier), {"key18"}},
        {"arrow in the log", kCommon.log, key(Qt::Key_Down), {}},
        {"key in a disabled combo", kCommon.amplifierIds, key(Qt::Key_5), {}},
        {"slider dragged", channel(1).volumeSlider, dragUp, {"change", "release"}},
        {"click on the groove", channel(1).volumeSlider, clickGroove, {"change", "release"}},
        {"down on a slider", channel(1).volumeSlider, key(Qt::Key_Down), {"change"}},
        {"up on a slider that grows upwards", pair(1).testSlider, key(Qt::Key_Up), {"change"}},
        {"down at its least", pair(1).testSlider, key(Qt::Key_Down), {}},
        {"up at the loudest", channel(1).volumeSlider, key(Qt::Key_Up), {}},
        {"wheel without the focus", pair(1).testSlider, wheel(false), {}},
        {"wheel with the focus", pair(1).testSlider, wheel(true), {"change"}},
        {"wheel over the tabs", kTabs, wheel(true), {}},
    };
    const QShortcut oneOfTheHosts(QKeySequence("Ctrl+R"), &front_);
    for (const InputRow& row : rows) {
        SCOPED_TRACE(row.label);
        toTab(pageOf(row.widget));
        for (const auto slider : {channel(1).volumeSlider, pair(1).testSlider})
            store_[slider].setPosition(0);
        settle();
        panel_.take();
        row.gesture(control(row.widget));
        Heard expected;
        for (const auto& what : row.heard)
            expected.push_back({row.from.value_or(row.widget), what});
        EXPECT_EQ(panel_.take(), expected);
        control(kTabs).setFocus();
    }
}

TEST_F(InputTest, ASliderIsHeldWhileItsButtonIsDown) {
    toTab(1);
    QWidget& slider = control(channel(1).volumeSlider);
    const auto isHeld = [&] {
        return store_.get<Runtime::StoredSlider>(channel(1).volumeSlider).state().isHeld;
    };
    QTest::mousePress(&slider, Qt::LeftButton);
    EXPECT_TRUE(isHeld());
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {-50, 500});
    EXPECT_FALSE(isHeld());
    QTest::mousePress(&slider, Qt::LeftButton);
    toTab(0);
    EXPECT_FALSE(isHeld()) << "nobody would tell the release";
}

TEST_F(InputTest, AComboTakesWhatTheStoreTakes) {
    auto& combo = store_[kCommon.amplifierIds];
    for (const char16_t* item : {u"1", u"2", u"12"}) combo.addItem(item);
    combo.setEnabled(true);
    settle();
    auto& box = control<QComboBox>(kCommon.amplifierIds);
    key(Qt::Key_2)(box);
    EXPECT_EQ(combo.text(), u"12");
    key(Qt::Key_Backspace)(box);
    EXPECT_EQ(combo.text(), u"1");
    key(Qt::Key_2)(box);
    panel_.discardsKeys = true;
    key(Qt::Key_5)(box);
    EXPECT_EQ(combo.text(), u"12");
    panel_.take();
    settle();
    key(Qt::Key_Up)(box);
    settle();
    EXPECT_EQ(panel_.take(), (Heard{{kCommon.amplifierIds, "click"}}));
    EXPECT_EQ(combo.text(), u"2");
}

TEST_F(InputTest, TabsFollowMouseKeysAndTheStoresWord) {
    auto& tabs = control<QTabBar>(kTabs);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    settle();
    EXPECT_TRUE(control(pair(1).startButton).isVisible());
    key(Qt::Key_Right)(tabs);
    settle();
    EXPECT_TRUE(control(pair(2).startButton).isVisible());
    store_[Widgets::TabsRef{0}].setTabEnabled(2, false);
    settle();
    EXPECT_EQ(tabs.currentIndex(), 1);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(2).center());
    EXPECT_EQ(tabs.currentIndex(), 1);
    key(Qt::Key_Tab, Qt::ControlModifier)(tabs);
    EXPECT_EQ(tabs.currentIndex(), 0) << "past the disabled tab";
}

}  // namespace
}  // namespace Orvo::Window
