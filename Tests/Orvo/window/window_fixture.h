#pragma once

#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "Orvo/window/panel_screen.h"
#include "Support/notification_log.h"
#include "Support/roles.h"

namespace Orvo::Window {

using Heard = std::vector<Tests::Told>;

/// A shown screen over a bare store: what the panel would write, the test writes.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        store_.notifyTo(&panel_);
        front_.show();
        front_.activateWindow();
        if (!QTest::qWaitForWindowActive(&front_)) ADD_FAILURE() << "the window stays inactive";
        settle();
    }

    template <class Widget = QWidget>
    Widget& control(WidgetId widget) {
        return dynamic_cast<Widget&>(*front_.control(widget));
    }

    void toTab(int tab) {
        store_.perform(Runtime::Deed::tab(0, tab));
        settle();
    }

    /// Lets the window catch up with everything.
    void settle() {
        front_.flush();
        QApplication::processEvents();
    }

    std::shared_ptr<Runtime::Store> owner_ = Runtime::Store::create();
    Runtime::Store& store_ = *owner_;
    Tests::NotificationLog panel_;
    PanelScreen front_{owner_};
};

}  // namespace Orvo::Window
