#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include <QMessageBox>

#include "Manager/Window/manager_window.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Support/bench.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// The lines that tell of events, without what stands before them.
std::vector<std::string> eventsIn(std::istream&& lines) {
    std::vector<std::string> events;
    for (std::string line; std::getline(lines, line);) {
        const auto at = line.find("event ");
        if (at != std::string::npos) events.push_back(line.substr(at));
    }
    return events;
}

class SessionTest : public testing::Test {
protected:
    SessionTest() { window_.open(); }

    MarvaneAssistant& panel() { return window_.panelWidget().panel(); }
    Runtime::Store& store() { return window_.panelWidget().store(); }
    void click(Widgets::WidgetId widget) { store().input().click(widget); }

    void replay(const std::string& script) {
        std::ofstream(file_) << script;
        window_.startReplay(QString::fromStdString(file_));
    }

    void letReplayEnd() {
        while (window_.isReplaying()) window_.letPass(100ms);
    }

    std::vector<std::string> events() {
        std::ostringstream lines;
        for (const std::string& line : window_.station().log().lines()) lines << line << '\n';
        return eventsIn(std::istringstream(lines.str()));
    }

    /// What the open warning says, which is then closed.
    QString warning() {
        auto* box = window_.findChild<QMessageBox*>();
        if (box == nullptr) return {};
        QString details = box->informativeText();
        delete box;
        return details;
    }

    Tests::TemporaryDirectory directory_;
    std::string file_ = directory_.path() / "session.txt";
    ManagerWindow window_;
};

TEST_F(SessionTest, WhatIsRecordedInTheMidstIsReplayedAlike) {
    window_.connectSimulator();
    window_.letPass(2s);
    window_.startRecording(QString::fromStdString(file_));
    EXPECT_FALSE(store().get<Runtime::StoredShape>(kCommon.linkLamp).state().fillStyle ==
                 Widgets::FillStyle::solid)
        << "a fresh panel";
    for (const auto widget :
         {channel(1).muteButton, pair(1).startButton, kCommon.internalDataButton}) {
        window_.letPass(1s);
        click(widget);
    }
    window_.letPass(1s);
    EXPECT_EQ(panel().Mute(1), Boolean(true));
    window_.stopRecording();
    click(channel(2).muteButton);
    window_.station().log().clear();
    window_.startReplay(QString::fromStdString(file_));
    EXPECT_EQ(panel().Mute(1), Boolean(false));
    letReplayEnd();
    EXPECT_EQ(warning(), "");
    EXPECT_EQ(panel().Mute(1), Boolean(true));
    EXPECT_EQ(events(), eventsIn(std::ifstream(file_)));
    EXPECT_GE(events().size(), 3U);
    EXPECT_TRUE(window_.station().traces().has(1));
}

TEST_F(SessionTest, AReplayTakesItsTime) {
    replay("let Mute 1 true\non Mute wait 5000\nclick Command12\nwait 1000\nlet Mute 2 true\n");
    window_.letPass(900ms);
    EXPECT_EQ(panel().Mute(1), Boolean(true));
    EXPECT_EQ(store().now(), 5900ms) << "a handler's wait is over at once";
    EXPECT_EQ(panel().Mute(2), Boolean(false));
    window_.letPass(100ms);
    EXPECT_EQ(panel().Mute(2), Boolean(true));
}

TEST_F(SessionTest, AReplayEndsWithWhatItDoesNotUnderstand) {
    replay("let Mute 1 true\nnew\nlet Mute 2 true\n  jump\nlet Mute 3 true\n");
    letReplayEnd();
    EXPECT_TRUE(warning().startsWith("session.txt:4:3: "));
    const std::vector<bool> muted{bool(panel().Mute(1)), bool(panel().Mute(2)),
                                  bool(panel().Mute(3))};
    EXPECT_EQ(muted, (std::vector{false, true, false}));
}

TEST_F(SessionTest, WhatIsConnectedEndsAReplay) {
    replay("wait 1000\nlet Mute 1 true\n");
    window_.letPass(25ms);
    const auto* const script = store().prompter();
    window_.connectSimulator();
    EXPECT_NE(store().prompter(), script);
    EXPECT_NE(store().prompter(), nullptr);
    EXPECT_FALSE(window_.isReplaying());
    window_.letPass(2s);
    EXPECT_EQ(panel().Mute(1), Boolean(false));
}

TEST_F(SessionTest, WhatCannotBeRecordedOrReplayedIsToldAndChangesNothing) {
    window_.connectSimulator();
    window_.letPass(2s);
    const auto* const before = &store();
    window_.startRecording("/no/such/place");
    EXPECT_TRUE(warning().contains("/no/such/place"));
    EXPECT_FALSE(window_.isRecording());
    window_.startReplay("/no/such/session");
    EXPECT_TRUE(warning().contains("/no/such/session"));
    EXPECT_NE(window_.station().simulator(), nullptr);
    EXPECT_EQ(&store(), before);
}

TEST_F(SessionTest, ARecordingStaysReadOnlyAndOnItsTab) {
    window_.setReadOnly(true);
    window_.selectTab(3);
    window_.startRecording(QString::fromStdString(file_));
    EXPECT_TRUE(window_.isReadOnly());
    EXPECT_EQ(window_.tab(), 3);
    window_.refresh();
    EXPECT_TRUE(window_.windowTitle().contains("Recording: "));
}

TEST_F(SessionTest, ALinkThatIsNoneIsRefusedWithAReason) {
    window_.connectSimulator();
    for (const char* address : {"", "  ", "/dev/ttyS0@77"}) {
        EXPECT_NE(window_.connectLink(QString(address)), "") << address;
        EXPECT_NE(window_.station().simulator(), nullptr) << address;
    }
    EXPECT_EQ(window_.connectLink(QString(" /dev/nowhere@9600 ")), "");
    EXPECT_EQ(window_.station().situation().connectedTo.find("Link to /dev/nowhere at 9600"), 0U);
}

TEST_F(SessionTest, AnErrorThatNoCallerWaitsForIsAmongTheEvents) {
    struct Saboteur final : Runtime::OperationObserver {
        void before(const Runtime::Operation&) override { throw Error(7, "Gone"); }
    } saboteur;
    window_.connectLink(QString("/dev/nowhere"));
    window_.station().log().clear();
    click(channel(1).muteButton);
    store().observeWith(&saboteur);
    click(channel(1).negative.option);
    store().observeWith(nullptr);
    EXPECT_EQ(window_.station().log().lines(),
              (std::deque<std::string>{"event Mute 1", "! 7 Gone"}));
}

TEST_F(SessionTest, TheHourglassEndsWhenTheAmplifierHasSpokenOrWillNot) {
    const auto isBusy = [this] { return store().pointer() == Widgets::Pointer::hourglass; };
    const auto beBusy = [this] { store().mousePointer().setPointer(Widgets::Pointer::hourglass); };
    window_.connectSimulator();
    window_.letPass(2s);
    beBusy();
    window_.letPass(1s);
    window_.letPass(1s);
    EXPECT_FALSE(isBusy());
    window_.setFault(Simulator::Fault::linkLoss, true);
    window_.letPass(25ms);
    beBusy();
    window_.letPass(1s);
    EXPECT_TRUE(isBusy());
    for (int i = 0; i < 4; ++i) window_.letPass(1s);
    EXPECT_FALSE(isBusy());
    window_.connectNothing();
    beBusy();
    window_.letPass(25ms);
    EXPECT_FALSE(isBusy());
}

}  // namespace
}  // namespace Orvo::Manager
