#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "Manager/Window/manager_window.h"
#include "Orvo/window/spoken/spoken.h"
#include "Support/bench.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Widgets::WidgetId;

/// A technician without a mouse.
class DayByKeysTest : public testing::Test {
protected:
    DayByKeysTest() {
        window_.open();
        QApplication::setActiveWindow(&window_);
        window_.activateWindow();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(focused != nullptr ? focused : &window_, key, modifiers);
        window_.panelWidget().flush();
    }

    void wait() {
        for (int i = 0; i < 40; ++i) window_.session().letPass(100ms);
        window_.refresh();
    }

    /// From wherever the keyboard is; no stop on the way keeps it.
    void tabTo(WidgetId widget) {
        constexpr int kMostStops = 60;
        const QWidget* const wanted = window_.panelWidget().control(widget);
        for (int stop = 0; stop < kMostStops; ++stop) {
            if (QApplication::focusWidget() == wanted) return;
            press(Qt::Key_Tab);
        }
        ADD_FAILURE() << "the keyboard doesn't reach " << Layout::describe(widget).name;
    }

    void tabToAndPress(WidgetId widget, Qt::Key key) {
        tabTo(widget);
        press(key);
        wait();
    }

    std::string notices() {
        std::string all;
        for (const Notice& notice :
             window_.session().station().notices().value_or(std::vector<Notice>())) {
            all += notice.text + '\n';
        }
        return all;
    }

    MarvaneAssistant& panel() { return window_.panelWidget().panel(); }

    ManagerWindow window_;
};

TEST_F(DayByKeysTest, NothingNeedsAMouse) {
    press(Qt::Key_F6);
    wait();
    ASSERT_TRUE(window_.session().station().situation().isHeard);

    for (const bool isOn : {false, true}) {
        tabToAndPress(kCommon.powerButton, Qt::Key_Space);
        EXPECT_EQ(panel().PowerOn(), Boolean(isOn));
    }
    press(Qt::Key_Tab, Qt::ControlModifier);
    tabToAndPress(channel(2).muteButton, Qt::Key_Space);
    tabToAndPress(channel(1).volumeSlider, Qt::Key_Down);
    tabTo(pair(1).waves[1]);
    press(Qt::Key_Up);
    tabToAndPress(pair(1).startButton, Qt::Key_Space);
    tabToAndPress(pair(1).testSlider, Qt::Key_PageUp);
    EXPECT_EQ(notices(), "Generator: 100 Hz to channel 1 +\nThermal test 1 + 2: 10 °C\nMuted: 2\n");
    EXPECT_EQ(Window::valueOf(window_.panelWidget().store(), channel(1).volume.places[0]), "-8 dB");
}

TEST_F(DayByKeysTest, InformationIsEnteredFromWhereverTheKeyboardIs) {
    press(Qt::Key_F6);
    wait();
    press(Qt::Key_Tab, Qt::ControlModifier);
    QStringList answers{"530284", "A-1", "B-2", "new fans"};
    QTimer typist;
    QObject::connect(&typist, &QTimer::timeout, &window_, [&] {
        QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr || focused->window() == &window_ || answers.isEmpty()) return;
        QTest::keyClicks(focused, answers.takeFirst());
        QTest::keyClick(focused, Qt::Key_Return);
    });
    typist.start(5);
    press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(answers.isEmpty());
    const auto& heard = window_.session().station().log().lines();
    EXPECT_TRUE(std::ranges::any_of(heard, [](const std::string& line) {
        return line.find("Information entered") != line.npos;
    }));
}

}  // namespace
}  // namespace Orvo::Manager
