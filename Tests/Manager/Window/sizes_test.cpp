#include <functional>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>

#include "Manager/Window/manager_window.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"

namespace Orvo::Manager {
namespace {

QRect placeOf(const QWidget& widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }

/// The program's window on one screen after the other.
class SizesTest : public testing::Test {
protected:
    SizesTest() {
        window_.session().connectLink(*LinkAddress::read("/dev/nowhere/with/a/long/name"));
        window_.open();
    }

    static void live() {
        for (int i = 0; i < 4; ++i) QApplication::processEvents();
    }

    void goTo(QScreen* screen, Qt::WindowStates state) {
        window_.setWindowState(Qt::WindowNoState);
        window_.setScreen(screen);
        window_.setGeometry(QRect(screen->availableGeometry().topLeft(), window_.size()));
        live();
        window_.setWindowState(state);
        live();
        window_.refresh();
        live();
    }

    void expectAllInSight() {
        const QRect screen = window_.screen()->geometry();
        EXPECT_TRUE(screen.contains(placeOf(window_))) << window_.width();
        for (const QWidget* part : window_.statusBar()->findChildren<QWidget*>()) {
            if (!part->isVisible()) continue;
            EXPECT_TRUE(screen.contains(placeOf(*part))) << qPrintable(part->objectName());
            EXPECT_GE(part->width(), part->minimumSizeHint().width());
        }
    }

    void expectPanelFits() {
        const QSize panel = window_.panelWidget().sizeHint();
        const QSize room = window_.centralWidget()->size();
        EXPECT_LE(panel.width(), room.width());
        EXPECT_LE(panel.height(), room.height());
        EXPECT_TRUE(room.width() - panel.width() < 3 || room.height() - panel.height() < 3);
        for (const auto* bar : window_.centralWidget()->findChildren<QScrollBar*>()) {
            EXPECT_FALSE(bar->parent()->parent() == window_.centralWidget() && bar->isVisible());
        }
    }

    /// Whatever dialog is open, with its buttons.
    void expectDialogInSight(const char* name) {
        live();
        const QRect screen = window_.screen()->availableGeometry();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << name;
        EXPECT_TRUE(screen.contains(placeOf(*dialog))) << name << dialog->height();
        for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
            const bool isIn = placeOf(*dialog).contains(placeOf(*button));
            EXPECT_TRUE(isIn || !button->isVisible()) << name;
        }
        dialog->done(2);  // as withdrawn: a password is asked for again otherwise
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void openPrompt() {
        auto& store = window_.panelWidget().store();
        store.enable(Layout::kCommon.resetLogButton, true);
        store.show(Layout::kCommon.resetLogButton, true);
        QTimer::singleShot(0, &window_, [this] { expectDialogInSight("prompt"); });
        store.perform(Runtime::Deed::click(Layout::kCommon.resetLogButton));
    }

    ManagerWindow window_;
};

TEST_F(SizesTest, OnEveryScreenThePanelFitsAndTheRestIsInSightAtAnyZoom) {
    const std::optional<int> zooms[] = {{}, kSmallestZoom, kPlainZoom, 400};
    for (QScreen* screen : QGuiApplication::screens()) {
        for (const auto state : {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen}) {
            for (const auto zoom : zooms) {
                SCOPED_TRACE(qPrintable(screen->name()) + testing::PrintToString(int(state)) +
                             testing::PrintToString(zoom.value_or(0)));
                window_.setZoom(zoom);
                goTo(screen, state);
                expectAllInSight();
                if (!zoom || state == Qt::WindowFullScreen) expectPanelFits();
                window_.setWindowState(Qt::WindowNoState);
                EXPECT_EQ(window_.zoom(), zoom);
            }
        }
    }
}

TEST_F(SizesTest, OnEveryScreenEveryDialogIsInSight) {
    const std::pair<const char*, std::function<void()>> dialogs[] = {
        {"shortcuts", [this] { window_.showShortcuts(); }},
        {"about", [this] { window_.showAbout(); }},
        {"picture", [this] { window_.savePicture(); }},
        {"failure", [this] { window_.session().startRecording(std::string(900, '/')); }},
    };
    for (QScreen* screen : QGuiApplication::screens()) {
        SCOPED_TRACE(qPrintable(screen->name()));
        goTo(screen, Qt::WindowMaximized);
        for (const auto& [name, open] : dialogs) {
            open();
            expectDialogInSight(name);
        }
        openPrompt();
    }
}

}  // namespace
}  // namespace Orvo::Manager

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
