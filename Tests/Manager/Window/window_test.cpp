#include <functional>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include "Manager/Scope/scope_window.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/pictures.h"
#include "Manager/Window/shortcuts.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Support/bench.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Simulator::Fault;

// As light is green: by the machine, a lamp's few brightest pixels lie a little beside the
// palette's.
bool hasGreen(const QImage& image) {
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QColor colour = image.pixelColor(i % image.width(), i / image.width());
        if (colour.green() > 220 && colour.red() < 60 && colour.blue() < 60) return true;
    }
    return false;
}

class WindowTest : public testing::Test {
protected:
    WindowTest() {
        window_.session().connectSimulator();
        window_.open();
    }

    void live(std::chrono::milliseconds time) {
        window_.session().station().advance(time);
        window_.refresh();
    }

    QAction* action(const QString& keys) {
        for (QAction* action : window_.actions()) {
            if (action->shortcuts().contains(QKeySequence(keys))) return action;
        }
        ADD_FAILURE() << "no action on " << keys.toStdString();
        return nullptr;
    }

    QString label(const char* name) { return window_.findChild<QLabel*>(name)->text(); }

    ManagerWindow window_;
};

TEST_F(WindowTest, EveryActionHasKeysThatNothingElseTakes) {
    // The panel's own, by which service staff enter information and go from tab to tab.
    QList<QKeySequence> taken{{"Ctrl+R"}, {"Ctrl+Tab"}, {"Ctrl+Shift+Tab"}, {"F10"}};
    for (const Shortcut& row : shortcutsOf(window_)) {
        EXPECT_FALSE(row.keys.isEmpty()) << row.what.toStdString();
        for (const QString& text : row.keys.split(" or ")) {
            const QKeySequence keys(text, QKeySequence::NativeText);
            for (const QKeySequence& other : taken) {
                const bool isFree = keys.matches(other) == QKeySequence::NoMatch &&
                                    other.matches(keys) == QKeySequence::NoMatch;
                EXPECT_TRUE(isFree) << row.what.toStdString() << ": " << text.toStdString();
            }
            taken.push_back(keys);
        }
    }
    for (const QAction* menu : window_.menuBar()->actions()) {
        const QKeySequence keys = QKeySequence::mnemonic(menu->text());
        EXPECT_FALSE(keys.isEmpty() || taken.contains(keys)) << menu->text().toStdString();
        taken.push_back(keys);
    }
    // Of a tab that nobody has looked at.
    EXPECT_TRUE(taken.contains(QKeySequence("Alt+S")) && taken.contains(QKeySequence("Alt+4")));
}

TEST_F(WindowTest, WhatIsNotKnownIsVeiledOnTheScreenButInNoPicture) {
    const auto* veil = window_.findChild<QLabel*>("Veil");
    EXPECT_TRUE(veil->isVisible() && veil->text() == "Waiting for a reply");
    live(2s);
    EXPECT_EQ(label("Link"), "Link up");
    EXPECT_FALSE(veil->isVisible());
    window_.panelWidget().flush();  // what fades in
    EXPECT_TRUE(hasGreen(window_.grab().toImage()));
    window_.session().simulator()->set(Fault::linkLoss, true);
    live(8s);
    EXPECT_EQ(label("Link"), "Link down");
    EXPECT_TRUE(label("Last word from the amplifier").contains("No reply for"));
    EXPECT_TRUE(window_.windowTitle().startsWith("Old values: "));
    EXPECT_TRUE(veil->text().startsWith("No reply for 8 s"));
    EXPECT_FALSE(hasGreen(window_.grab().toImage()));
    EXPECT_TRUE(hasGreen(pictureOf(window_.panelWidget())));
    const QPoint under = veil->mapTo(&window_, veil->rect().center());
    EXPECT_TRUE(window_.panelWidget().isAncestorOf(window_.childAt(under)));
    window_.session().simulator()->set(Fault::linkLoss, false);
    live(300ms);
    EXPECT_FALSE(veil->isVisible());
}

TEST_F(WindowTest, MenusFollowWhatIsConnectedAndWhatThePanelIs) {
    window_.session().simulator()->set(Fault::mainsFailure, true);
    window_.refresh();
    EXPECT_TRUE(action("Ctrl+F, 3")->isChecked());
    action("F8")->trigger();
    EXPECT_FALSE(action("Ctrl+F, 3")->isEnabled() || action("F9")->isEnabled());
    action("F6")->trigger();
    EXPECT_TRUE(action("F9")->isEnabled());
    EXPECT_FALSE(action("Ctrl+F, 3")->isChecked());
    MarvaneAssistant& panel = window_.panelWidget().panel();
    action("F2")->trigger();
    EXPECT_EQ(panel.ReadOnly(), Boolean(true));
    for (const bool isOn : {false, true}) {
        panel.ReadOnly(isOn);
        panel.AbilitaSlave(isOn);
        window_.refresh();
        EXPECT_EQ(action("F2")->isChecked(), isOn);
        EXPECT_EQ(action("Ctrl+3")->isEnabled(), isOn);
    }
}

TEST_F(WindowTest, TellsOfARecordingAndOfOneThatCannotBe) {
    const Tests::TemporaryDirectory directory;
    window_.session().startRecording(directory.path() / "session.txt");
    window_.refresh();
    EXPECT_TRUE(window_.windowTitle().contains("Recording: "));
    EXPECT_EQ(label("Message"), "Recording to session.txt");
    EXPECT_TRUE(window_.panelWidget().control(Layout::kTabs)->isVisible());
    std::filesystem::remove(directory.path() / "session.txt");
    window_.session().letPass(1s);
    EXPECT_TRUE(window_.windowTitle().startsWith("Recording stopped: "));
    EXPECT_TRUE(label("Message").contains("The file was removed"));
    auto* box = window_.findChild<QMessageBox*>();
    EXPECT_TRUE(box->informativeText().contains("The file was removed"));
    box->accept();
    auto* dialog = window_.findChild<QFileDialog*>();
    ASSERT_NE(dialog, nullptr) << "another file is offered";
    delete box;
    dialog->reject();
    window_.refresh();
    EXPECT_FALSE(window_.windowTitle().contains("Recording"));
    box = window_.findChild<QMessageBox*>();
    EXPECT_EQ(box->text(), "Not all of the session is recorded.");
    delete box;
    window_.session().startRecording("/no/such/place");
    EXPECT_TRUE(window_.findChild<QMessageBox*>()->informativeText().contains("/no/such/place"));
}

TEST_F(WindowTest, TheEventViewShowsTheLastEventsAndIsBounded) {
    window_.session().connectNothing();
    window_.showEvents(true);
    for (std::size_t i = 0; i < EventLog::kMostLines + 50; ++i) {
        window_.panelWidget().store().perform(Runtime::Deed::click(channel(1).muteButton));
        if (i % 777 == 0) window_.refresh();
    }
    auto* sideways = window_.findChild<QPlainTextEdit*>()->horizontalScrollBar();
    sideways->setRange(0, 99);
    sideways->setValue(99);
    window_.refresh();
    EXPECT_EQ(sideways->value(), 0) << "the newest lines show from their first letter on";
    window_.copyEvents();
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    EXPECT_EQ(lines.size(), qsizetype(EventLog::kMostLines));
    EXPECT_TRUE(lines.last().endsWith("Asked to mute or unmute channel 1"));
    action("Ctrl+Shift+X")->trigger();
    window_.copyEvents();
    EXPECT_EQ(QApplication::clipboard()->text(), "");
}

TEST_F(WindowTest, TheMessageLogIsCopiedLineByLine) {
    window_.panelWidget().panel().CancellaTesto();
    for (const char16_t* line : {u"one", u"due €"}) {
        window_.panelWidget().panel().AggiugiTesto(line);
    }
    action("Ctrl+L")->trigger();
    const QString copied = QApplication::clipboard()->text();
    const QRegularExpression lines(
        R"(^(\d{4}(-\d\d){2} \d\d(:\d\d){2}  .*\n)*.{21}one\n.{21}due €\n$)");
    EXPECT_TRUE(lines.match(copied).hasMatch()) << copied.toStdString();
}

TEST_F(WindowTest, TheZoomKeysGoFromStopToStop) {
    window_.setZoom(110);
    window_.zoomIn();
    EXPECT_EQ(window_.panelWidget().zoom(), 1.25);
    window_.zoomOut();
    EXPECT_EQ(window_.panelWidget().zoom(), 1);
    EXPECT_EQ(nextLarger(kLargestZoom), kLargestZoom);
    EXPECT_EQ(nextSmaller(kSmallestZoom), kSmallestZoom);
}

TEST_F(WindowTest, TheWheelWithCtrlZoomsWhereverItTurns) {
    for (const auto widget : {Layout::kCommon.log.id, Layout::kTabs.id}) {
        window_.setZoom(kPlainZoom);
        for (const int turn : {60, 60, -240}) {
            QWidget* under = window_.panelWidget().control(widget);
            if (QWidget* inner = under->childAt(5, 5)) under = inner;
            QWheelEvent event({5, 5}, under->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, {},
                              Qt::ControlModifier, Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&event);  // only such go on to what is behind
            qApp->notify(under, &event);
        }
        EXPECT_EQ(window_.zoom(), 75) << widget;
    }
}

TEST_F(WindowTest, FullScreenIsLeftByMouseAndByKey) {
    auto* exit = window_.findChild<QToolButton*>("Leave full screen");
    const std::function<void()> ways[] = {[&] { exit->click(); }, [&] { action("Esc")->trigger(); },
                                          [&] { action("F11")->trigger(); }};
    for (const auto& leave : ways) {
        action("F11")->trigger();
        EXPECT_TRUE(window_.isFullScreen() && exit->isVisible());
        leave();
        EXPECT_FALSE(window_.isFullScreen() || exit->isVisible());
        EXPECT_TRUE(window_.menuBar()->isVisible());
    }
}

TEST_F(WindowTest, PicturesShowThePanelAndAnyScope) {
    window_.selectTab(1);
    live(3s);
    const QImage before = pictureOf(window_.panelWidget());
    EXPECT_EQ(before.size(), window_.panelWidget().sizeHint());
    const QImage scope = pictureOfScope(window_.panelWidget(), 3);
    EXPECT_GE(scope.width(), 4 * 195);
    EXPECT_TRUE(hasGreen(scope));
    EXPECT_EQ(pictureOf(window_.panelWidget()), before);
}

TEST_F(WindowTest, TheScopesAreSavedFromTheirOwnWindow) {
    action("F4")->trigger();
    auto* scopes = window_.findChild<ScopeWindow*>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(scopes) && action("F4")->isChecked());
    for (const char* keys : {"Ctrl+S", "Ctrl+T"}) {
        QTest::keySequence(scopes, QKeySequence(keys));
        auto* dialog = scopes->findChild<QFileDialog*>();
        ASSERT_TRUE(dialog) << keys;
        delete dialog;
    }
    scopes->close();
    window_.refresh();
    EXPECT_FALSE(action("F4")->isChecked());
}

TEST_F(WindowTest, ClosingEndsWithAPromptOpen) {
    QTimer soon;
    soon.setSingleShot(true);
    QObject::connect(&soon, &QTimer::timeout, &window_, &QWidget::close);
    soon.start(0);
    window_.panelWidget().store().enable(kCommon.resetLogButton, true);
    window_.panelWidget().store().show(kCommon.resetLogButton, true);
    window_.panelWidget().store().perform(Runtime::Deed::click(kCommon.resetLogButton));
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(window_.findChild<QInputDialog*>(), nullptr);
}

TEST_F(WindowTest, ClosingEndsEveryDialog) {
    const std::pair<const char*, void (ManagerWindow::*)()> dialogs[] = {
        {"shortcuts", &ManagerWindow::showShortcuts}, {"about", &ManagerWindow::showAbout},
        {"picture", &ManagerWindow::savePicture},     {"log", &ManagerWindow::saveMessageLog},
        {"link", &ManagerWindow::askForLink},
    };
    for (const auto& [name, open] : dialogs) {
        ManagerWindow window;
        window.open();
        (window.*open)();
        const QPointer<QDialog> dialog = window.findChild<QDialog*>();
        ASSERT_TRUE(dialog) << name;
        EXPECT_TRUE(dialog->isVisible()) << name;
        window.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(dialog && dialog->isVisible()) << name;
    }
}

}  // namespace
}  // namespace Orvo::Manager
