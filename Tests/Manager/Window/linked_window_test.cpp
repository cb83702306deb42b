#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>

#include "Manager/Window/manager_window.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Support/roles.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// A window whose link leads to this test.
class LinkedWindow : public testing::Test {
protected:
    LinkedWindow() {
        const bool isThere = ::grantpt(other_) == 0 && ::unlockpt(other_) == 0;
        if (isThere) path_ = ::ptsname(other_);
    }
    ~LinkedWindow() override { ::close(other_); }

    void SetUp() override {
        if (path_.empty()) GTEST_SKIP() << "there are no pseudo-terminals here";
    }

    void open(ManagerWindow& window) {
        window_ = &window;
        window.connectLink(LinkAddress{path_});
        window.open();
        window.letPass(25ms);
    }

    /// What comes back, as soon as it ends like this.
    std::string exchange(const std::string& sent, const std::string& end) {
        EXPECT_EQ(::write(other_, sent.data(), sent.size()), ssize_t(sent.size()));
        std::string text;
        for (int i = 0; i < 1000 && !text.ends_with(end); ++i) {
            window_->letPass(25ms);
            std::array<char, 4096> piece{};
            const auto count = ::read(other_, piece.data(), piece.size());
            text.append(piece.data(), std::size_t(std::max<ssize_t>(0, count)));
            if (count <= 0) std::this_thread::sleep_for(1ms);
        }
        return text;
    }

    void press(Widgets::ButtonRef button) {
        qobject_cast<QAbstractButton*>(window_->panelWidget().control(button))->click();
    }

    int other_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    std::string path_;
    ManagerWindow* window_ = nullptr;
};

TEST_F(LinkedWindow, ALinkMayAskForAFreshPanelAlsoWhileItAnswersTheOldOne) {
    ManagerWindow window;
    open(window);
    EXPECT_EQ(exchange("let Mute 1 true\nnew\nget Mute 1\n", "= 0\n"), "ok\nok\n= 0\n");
    EXPECT_EQ(exchange("on OnOff new\nlet Mute 2 true\n", "ok\nok\n"), "ok\nok\n");
    press(kCommon.powerButton);
    EXPECT_EQ(exchange("get Mute 2\n", "= 0\n"), "event OnOff\n  ok\n= 0\n");
    press(kCommon.internalDataButton);
    EXPECT_EQ(exchange("\n", "DownLoad\n"), "event DownLoad\n") << "the fresh panel's buttons";
    EXPECT_TRUE(window.panelWidget().control(kTabs)->isVisible());
}

TEST_F(LinkedWindow, AFreshPanelStaysReadOnlyWhenTheOptionsSaySo) {
    for (const bool isReadOnly : {true, false}) {
        ManagerWindow window({.isReadOnly = isReadOnly});
        open(window);
        const std::string truth = isReadOnly ? "= -1\n" : "= 0\n";
        EXPECT_EQ(exchange("new\nget ReadOnly\n", truth), "ok\n" + truth);
        press(channel(1).muteButton);
        EXPECT_EQ(exchange("get Mute 1\n", "= 0\n"), isReadOnly ? "= 0\n" : "event Mute 1\n= 0\n");
    }
}

}  // namespace
}  // namespace Orvo::Manager
