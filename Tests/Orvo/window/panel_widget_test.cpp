#include "Orvo/window/panel_widget.h"

#include <functional>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/drawing/scale.h"
#include "Support/roles.h"

namespace Orvo::Window {
namespace {

/// A host that does one thing at whatever event comes.
class Host final : public MarvaneAssistantEvents {
public:
    void OnOff() override { act(); }
    void VolumeChange(Integer&, Integer&) override { act(); }
    void SetTemp(Integer&, Integer&) override { act(); }
    void ChangeAmpId(Integer&) override { act(); }

    std::function<void()> act = [] {};
};

class PanelWidgetTest : public testing::Test {
protected:
    PanelWidgetTest() {
        widget_->show();
        QApplication::processEvents();
    }
    void TearDown() override { delete widget_; }

    QWidget& control(WidgetId id) { return *widget_->control(id); }
    /// As the window system tells it, from where Qt goes on after a handler.
    void press(WidgetId id) { tell(id, QTest::mousePress); }
    void click(WidgetId id) {
        press(id);
        tell(id, QTest::mouseRelease);
    }
    void toTab(int tab) {
        widget_->store().perform(Runtime::Deed::tab(0, tab));
        widget_->flush();
    }

    QPointer<PanelWidget> widget_ = new PanelWidget;
    Host host_;
    Connection connection_ = widget_->panel().connect(host_);

private:
    using Gesture = void (*)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);

    void tell(WidgetId id, Gesture gesture) {
        const int tab = pageOf(id);
        if (widget_->store().get<Runtime::StoredTabs>(0).state().current != tab) toTab(tab);
        const QPoint place = control(id).mapTo(widget_, control(id).rect().center());
        gesture(widget_->windowHandle(), Qt::LeftButton, {}, place, -1);
    }
};

TEST_F(PanelWidgetTest, ATimerThatIsStartedLateWaitsItsWholeInterval) {
    auto& panel = widget_->panel();
    panel.TimerVirtualTemp12(false);
    panel.TimerVirtualTemp34(false);
    const std::chrono::milliseconds late(300);
    QTest::qWait(int(late.count()));
    panel.TimerVirtualTemp12(true);
    EXPECT_GT(widget_->store().untilNextTick(), std::chrono::milliseconds(1500) - late);
}

TEST_F(PanelWidgetTest, ItsParentMayDeleteIt) {
    auto* parent = new QWidget;
    widget_->setParent(parent);
    delete parent;
    EXPECT_FALSE(widget_);
    EXPECT_FALSE(connection_.isConnected());
}

TEST_F(PanelWidgetTest, AHandlerMayDeleteIt) {
    struct {
        const char* label;
        std::function<void()> gesture;
    } rows[] = {
        {"click", [&] { click(kCommon.powerButton); }},
        {"screen reader",
         [&] { dynamic_cast<QAbstractButton&>(control(kCommon.powerButton)).click(); }},
        {"release", [&] { click(pair(1).powerCheck); }},
        {"key", [&] { QTest::keyClick(&control(kCommon.powerButton), Qt::Key_Return); }},
        {"shortcut", [&] { QTest::keyClick(widget_, Qt::Key_P, Qt::AltModifier); }},
        {"slider key", [&] { QTest::keyClick(&control(channel(1).volumeSlider), Qt::Key_Down); }},
        {"slider", [&] { press(channel(1).volumeSlider); }},
        {"tick",
         [&] {
             widget_->store().perform(Runtime::Deed::slide(pair(1).testSlider, 50));
             host_.act = [&] { delete widget_; };
             QTest::qWait(1700);
         }},
        {"pick",
         [&] {
             widget_->store().enable(kCommon.amplifierIds, true);
             widget_->flush();
             QTest::keyClick(&control(kCommon.amplifierIds), Qt::Key_Down);
             QApplication::processEvents();
         }},
    };
    for (const bool isDeferred : {false, true}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.label);
            delete widget_;
            widget_ = new PanelWidget;
            widget_->show();
            widget_->activateWindow();
            QApplication::processEvents();
            connection_ = widget_->panel().connect(host_);
            const bool isTick = row.label == std::string("tick");
            host_.act = [&] { isDeferred ? widget_->deleteLater() : delete widget_; };
            if (isTick) host_.act = [] {};
            row.gesture();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_FALSE(widget_);
        }
    }
}

class PromptTest : public PanelWidgetTest {
protected:
    /// Does this as soon as a dialog is open.
    template <class Action>
    void whenAsked(Action action) {
        QTimer::singleShot(0, qApp, [=] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            action(*dialog);
        });
    }
    String ask() { return store_->inputPrompt().ask({u"Who?", u"", Widgets::Echo::hidden}); }

    std::shared_ptr<Runtime::Store> store_ = widget_->store().shared_from_this();
};

TEST_F(PromptTest, TheAnswerIsWhatWasTypedOrNothingWhenCancelled) {
    for (const bool isCancelled : {false, true}) {
        whenAsked([=](QInputDialog& dialog) {
            EXPECT_EQ(dialog.textEchoMode(), QLineEdit::Password);
            EXPECT_EQ(dialog.labelText(), "Who?");
            EXPECT_FALSE(dialog.windowTitle().isEmpty());
            dialog.setTextValue("me");
            isCancelled ? dialog.reject() : dialog.accept();
        });
        EXPECT_EQ(ask(), isCancelled ? u"" : u"me");
    }
}

TEST_F(PromptTest, GrowsWithTheZoom) {
    QSize sizes[2];
    for (const int zoom : {1, 2}) {
        widget_->setZoom(zoom);
        whenAsked([&](QInputDialog& dialog) {
            sizes[zoom - 1] = dialog.size();
            dialog.reject();
        });
        ask();
    }
    EXPECT_GT(sizes[1].height(), sizes[0].height());
}

TEST_F(PromptTest, ClosingTheWindowOrDeletingThePanelWithdrawsAllThatAreOpen) {
    for (const bool isDeleted : {false, true}) {
        whenAsked([=, this](QInputDialog&) {
            whenAsked(
                [=, this](QInputDialog&) { isDeleted ? delete widget_ : void(widget_->close()); });
            EXPECT_THROW(ask(), Widgets::PromptWithdrawn);
        });
        EXPECT_THROW(ask(), Widgets::PromptWithdrawn);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        if (!isDeleted) widget_->show();
    }
}

// The password, the two serial numbers, the information: a window that closes leaves none half
// done.
TEST_F(PromptTest, ClosingTheWindowEndsTheEntryAtWhicheverPrompt) {
    for (int closedAt = 1; closedAt <= 4; ++closedAt) {
        int asked = 0;
        int raised = 0;
        const auto connection = widget_->panel().connect([&](Long, std::span<Value>) { ++raised; });
        QTimer answering;
        QObject::connect(&answering, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            if (++asked == closedAt) return void(widget_->close());
            dialog->setTextValue("530284");
            dialog->accept();
        });
        answering.start(1);
        widget_->show();
        store_->perform(Runtime::Deed::key(kCommon.log, 18));
        EXPECT_EQ(asked, closedAt);
        EXPECT_EQ(raised, 0);
        EXPECT_TRUE(store_->widget(kCommon.resetLogButton).isEnabled());
        EXPECT_EQ(store_->pointer(), Widgets::Pointer::standard);
    }
}

}  // namespace
}  // namespace Orvo::Window
