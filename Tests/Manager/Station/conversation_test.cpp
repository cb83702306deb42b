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
    for (const bool isOn : {true, true, false}) panel_.Signal(1, isOn);
    panel_.Signal(2, false);
    panel_.ClearTest();
    panel_.ClearTest();
    EXPECT_EQ(log_.lines(), Log({"let Signal 1 -1", "let Signal 1 0", "let Signal 2 0",
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

TEST(EventLogTest, KeepsTheLastLines) {
    EventLog log;
    for (std::size_t i = 0; i < EventLog::kMostLines + 2; ++i) log.add(std::to_string(i));
    EXPECT_EQ(log.lines().size(), EventLog::kMostLines);
    EXPECT_EQ(log.lines().front(), "2");
    EXPECT_EQ(log.added(), EventLog::kMostLines + 2);
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
