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
#include <QScrollBar>
#include <QTimer>

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

TEST_F(WindowTest, SilenceIsToldInWords) {
    live(2s);
    EXPECT_EQ(label("Link"), "Link up");
    window_.session().simulator()->set(Fault::linkLoss, true);
    live(8s);
    EXPECT_EQ(label("Link"), "Link down");
    EXPECT_TRUE(label("Last word from the amplifier").contains("No reply for"));
    EXPECT_TRUE(window_.windowTitle().startsWith("Old values: "));
}

TEST_F(WindowTest, WhatIsNotKnownIsVeiledOnTheScreenButInNoPicture) {
    const auto* veil = window_.findChild<QLabel*>("Veil");
    const auto hasGreen = [](const QImage& image) {
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor colour = image.pixelColor(i % image.width(), i / image.width());
            if (colour == QColor(0, 255, 0)) return true;
        }
        return false;
    };
    EXPECT_TRUE(veil->isVisible() && veil->text() == "Waiting for a reply");
    live(2s);
    EXPECT_FALSE(veil->isVisible());
    window_.panelWidget().flush();  // what fades in
    EXPECT_TRUE(hasGreen(window_.grab().toImage()));
    window_.session().simulator()->set(Fault::linkLoss, true);
    live(8s);
    EXPECT_TRUE(veil->text().startsWith("No reply for 8 s"));
    EXPECT_FALSE(hasGreen(window_.grab().toImage()));
    EXPECT_TRUE(hasGreen(pictureOf(window_.panelWidget())));
    const QPoint under = veil->mapTo(&window_, veil->rect().center());
    EXPECT_TRUE(window_.panelWidget().isAncestorOf(window_.childAt(under)));
    window_.session().simulator()->set(Fault::linkLoss, false);
    live(300ms);
    EXPECT_FALSE(veil->isVisible());
}

TEST_F(WindowTest, MenusFollowWhatIsConnected) {
    window_.session().simulator()->set(Fault::mainsFailure, true);
    window_.refresh();
    EXPECT_TRUE(action("Ctrl+F, 3")->isChecked());
    action("F8")->trigger();
    EXPECT_FALSE(action("Ctrl+F, 3")->isEnabled());
    EXPECT_FALSE(action("F9")->isEnabled());
    action("F6")->trigger();
    EXPECT_TRUE(action("F9")->isEnabled());
    EXPECT_FALSE(action("Ctrl+F, 3")->isChecked());
}

TEST_F(WindowTest, ATabThatIsMissingCannotBeCommanded) {
    for (const bool isThere : {false, true}) {
        window_.panelWidget().panel().AbilitaSlave(isThere);
        window_.refresh();
        EXPECT_EQ(action("Ctrl+3")->isEnabled(), isThere);
    }
}

TEST_F(WindowTest, ReadOnlyModeIsThePanels) {
    action("F2")->trigger();
    EXPECT_EQ(window_.panelWidget().panel().ReadOnly(), Boolean(true));
    window_.panelWidget().panel().ReadOnly(false);
    window_.refresh();
    EXPECT_FALSE(action("F2")->isChecked());
}

TEST_F(WindowTest, ALinkThatIsNoneIsRefusedWithAReason) {
    for (const char* address : {"", "  ", "/dev/ttyS0@77"}) {
        EXPECT_NE(window_.connectLink(QString(address)), "") << address;
        EXPECT_NE(window_.session().simulator(), nullptr) << address;
    }
    EXPECT_EQ(window_.connectLink(QString(" /dev/nowhere@9600 ")), "");
    window_.refresh();
    EXPECT_TRUE(window_.windowTitle().contains("Link to /dev/nowhere at 9600"));
}

TEST_F(WindowTest, TellsOfARecordingOnAFreshPanelAndOfOneThatCannotBe) {
    const Tests::TemporaryDirectory directory;
    window_.session().startRecording(directory.path() / "session.txt");
    window_.refresh();
    EXPECT_TRUE(window_.windowTitle().contains("Recording: "));
    EXPECT_EQ(label("Message"), "Recording from a fresh start to session.txt");
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
    EXPECT_EQ(box->text(), "The end of the session is not recorded.");
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
    EXPECT_EQ(lines.last(), "event Mute 1");
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
    EXPECT_EQ(QApplication::clipboard()->text(), "one\ndue €");
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

TEST_F(WindowTest, NoTextWidensASmallWindow) {
    window_.connectLink(QString("/dev/nowhere/with/a/long/name"));
    window_.setZoom(kSmallestZoom);
    EXPECT_EQ(window_.width(), window_.panelWidget().sizeHint().width());
}

TEST_F(WindowTest, FullScreenFillsTheScreenAndGivesTheZoomBack) {
    window_.setZoom(75);
    window_.setFullScreen(true);
    QApplication::processEvents();
    EXPECT_GT(window_.panelWidget().zoom(), 1);
    EXPECT_TRUE(label("Message").contains("F11"));
    window_.setFullScreen(false);
    EXPECT_EQ(label("Message"), "");
    EXPECT_EQ(window_.panelWidget().zoom(), 0.75);
}

TEST_F(WindowTest, PicturesShowThePanelAndAnyScope) {
    window_.selectTab(1);
    live(3s);
    const QImage before = pictureOf(window_.panelWidget());
    EXPECT_EQ(before.size(), window_.panelWidget().sizeHint());
    const QImage scope = pictureOfScope(window_.panelWidget(), 3);
    EXPECT_GE(scope.width(), 4 * 195);
    const QColor green(0, 255, 0);
    bool hasTrace = false;
    for (int x = 0; x < scope.width(); ++x) {
        for (int y = 0; y < scope.height(); ++y) hasTrace |= scope.pixelColor(x, y) == green;
    }
    EXPECT_TRUE(hasTrace);
    EXPECT_EQ(pictureOf(window_.panelWidget()), before);
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
        {"shortcuts", &ManagerWindow::showShortcuts},
        {"about", &ManagerWindow::showAbout},
        {"picture", &ManagerWindow::savePicture},
        {"log", &ManagerWindow::saveMessageLog},
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
