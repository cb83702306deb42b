#include "Manager/Station/conversation.h"

#include <gtest/gtest.h>

#include "Support/bench.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Log = std::deque<std::string>;

class ConversationTest : public Tests::PanelTest {
protected:
    EventLog log_;
    Conversation conversation_{log_};
    Connection calls_ = panel_.listen(conversation_);
};

TEST_F(ConversationTest, LeavesOutTheSteadyFlowUnlessAskedForEverything) {
    const auto flow = [this] {
        panel_.VPPower(1, 48);
        panel_.DisegnaFormaDOnda(1, {1, {7, 8}});
        panel_.PowerOn();
    };
    flow();
    EXPECT_EQ(log_.lines(), Log());
    conversation_.setDetail(Detail::everything);
    flow();
    EXPECT_EQ(log_.lines(),
              Log({"let VPPower 1 48", "call DisegnaFormaDOnda 1 [7 8]", "get PowerOn", "= 0"}));
}

TEST_F(ConversationTest, LeavesOutWhatOnlyRepeatsTheLastValueOfTheSameIndex) {
    for (const bool isOn : {true, true, false}) panel_.Ready(1, isOn);
    panel_.Ready(2, false);
    panel_.ClearTest();
    panel_.ClearTest();
    EXPECT_EQ(log_.lines(), Log({"let Ready 1 -1", "let Ready 1 0", "let Ready 2 0",
                                 "call ClearTest", "call ClearTest"}));
}

TEST_F(ConversationTest, ShowsErrors) {
    EXPECT_THROW(panel_.chkTest(6, true), Error);
    EXPECT_EQ(log_.lines(),
              Log({"let chkTest 6 -1", "! 340 Control array element '6' doesn't exist"}));
}

TEST_F(ConversationTest, TellsTheTimeAfterAPause) {
    panel_.Connected(true);
    conversation_.setTime(999ms);
    panel_.PowerOn(true);
    conversation_.setTime(12'345ms);
    panel_.PowerOn(false);
    EXPECT_EQ(log_.lines(),
              Log({"let Connected -1", "let PowerOn -1", "# 12.3 s", "let PowerOn 0"}));
}

TEST_F(ConversationTest, SaysItInATechniciansWords) {
    conversation_.setForm(Form::words);
    conversation_.setClock([] { return "15:09:26"; });
    const auto events = panel_.connect([&](Long dispatchId, std::span<Value> arguments) {
        conversation_.raised(dispatchId, arguments);
        panel_.PowerOn();
        panel_.Mute(2, true);
        conversation_.handled();
    });
    store_.perform(Runtime::Deed::click(Layout::channel(2).muteButton));
    panel_.Mute(0, false);
    panel_.chkTest(1, true);
    panel_.AggiugiTesto(u"a\nb");
    conversation_.raised(9, std::array<Value, 3>{Integer(3), Integer(4), Integer(2)});
    for (int i = 0; i < 2; ++i) {
        conversation_.raised(8, std::array<Value, 2>{Integer(1), Integer(60)});
        if (i == 0) conversation_.handled();
    }
    conversation_.raised(8, std::array<Value, 2>{Integer(2), Integer(0)});
    EXPECT_THROW(panel_.chkTest(6, false), Error);
    EXPECT_EQ(
        log_.lines(),
        Log({"15:09:26  Asked to mute or unmute channel 2", "15:09:26    Channel 2 muted",
             "15:09:26  The whole amplifier unmuted", "15:09:26  Positive power bus test passed",
             "15:09:26  Asked for Line in on the negative input of channel 3",
             "15:09:26    Asked for a thermal test of channels 1 and 2 at 60 °C",
             "15:09:26      Asked to end the thermal test of channels 3 and 4",
             "15:09:26        Test 6 failed",
             "15:09:26        Error 340 Control array element '6' doesn't exist"}));
}

TEST(EventLogTest, CutsALongLineBetweenCharacters) {
    EventLog log;
    std::string line;
    while (line.size() < 5000) line += "€";
    log.add(line);
    const std::string& cut = log.lines().front();
    EXPECT_LE(cut.size(), EventLog::kLongestLine);
    EXPECT_EQ(cut.size() % 3, 0U);
    EXPECT_TRUE(cut.ends_with("€…"));
}

}  // namespace
}  // namespace Orvo::Manager
