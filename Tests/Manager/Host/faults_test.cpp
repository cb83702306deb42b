#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

// What a fault shows, and that it's gone after it.
struct Case {
    Fault fault;
    int untilShown;  // milliseconds
    const char* lamp;
    bool isLitByFault;
    int untilGone;
    const char* log;
    const char* logAfter;
};

void PrintTo(const Case& one, std::ostream* out) { *out << one.log << ": " << one.lamp; }

class Faults : public HostTest, public testing::WithParamInterface<Case> {};

TEST_P(Faults, ShowAndRecover) {
    const Case& one = GetParam();
    run();
    EXPECT_NE(isLit(one.lamp), one.isLitByFault);
    host_->set(one.fault, true);
    pass(one.untilShown);
    EXPECT_EQ(isLit(one.lamp), one.isLitByFault);
    EXPECT_TRUE(hasLogged(one.log));
    EXPECT_FALSE(hasLogged(one.logAfter));
    host_->set(one.fault, false);
    pass(one.untilGone);
    EXPECT_NE(isLit(one.lamp), one.isLitByFault);
    EXPECT_TRUE(hasLogged(one.logAfter));
}

// clang-format off
constexpr Case kCases[] = {
    {Fault::mainsFailure, 300, "shpMainPresence34", false, 300, "Mains failure", "Mains present"},
    {Fault::mainsFailure, 2000, "Shape4", false, 3000, "Mains failure", "Mains present"},
    {Fault::shortOnChannel1, 200, "Shape18", true, 2500, "1: protection trip", "1: protection clear"},
    {Fault::shortOnChannel3, 200, "Shape28", true, 2500, "3: protection trip", "3: protection clear"},
    {Fault::shortOnChannel4, 200, "Shape14", true, 2500, "4: protection trip", "4: protection clear"},
    {Fault::overTemperature, 60'000, "Shape13", true, 90'000, "3: protection trip", "3: protection clear"},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(OfTheAmplifier, Faults, testing::ValuesIn(kCases));

TEST_F(HostTest, SwitchesOnAgainWhenTheMainsReturn) {
    run();
    host_->set(Fault::mainsFailure, true);
    pass(8000);
    EXPECT_FALSE(isLit("shpOnOff"));
    EXPECT_LT(positivePower(), 10);
    EXPECT_EQ(digits({"LED5", "LED6", "LED27"}), "000");
    EXPECT_NEAR(swing("Picture1").highest, 0, 1);
    host_->set(Fault::mainsFailure, false);
    pass(300);
    EXPECT_TRUE(isLit("shpOnOff"));
    EXPECT_FALSE(isLit("Shape17"));
    pass(2500);
    EXPECT_TRUE(isLit("Shape17"));
}

TEST_F(HostTest, ShowsALostLinkAndStopsUntilItReturns) {
    run();
    host_->set(Fault::linkLoss, true);
    pass(500);
    EXPECT_TRUE(host_->isConnected());
    pass(500);
    EXPECT_FALSE(host_->isConnected());
    EXPECT_EQ(caption("lblConnected12"), u"Disconnected");
    EXPECT_TRUE(hasLogged("Link lost"));
    const auto before = log().size();
    // The last that is known stays, whatever happens to it.
    panel_.VPPower(1, 999);
    panel_.Mute(2, true);
    panel_.VolumeSlider(2, -20);
    person_.slide(id("ZelvinSlider3"), 95);
    host_->set(Fault::shortOnChannel3, true);
    pass(5000);
    EXPECT_EQ(positivePower(), 999);
    EXPECT_EQ(log().size(), before);
    EXPECT_FALSE(isLit("Shape13"));
    EXPECT_GT(host_->sinceLastWord(), Milliseconds(5000));
    host_->set(Fault::linkLoss, false);
    pass(500);
    EXPECT_TRUE(isLit("shpConnected"));
    EXPECT_NEAR(positivePower(), 118, 2);
    EXPECT_FALSE(isLit("Shape15"));
    EXPECT_EQ(position("ZelvinSlider2"), 18);
    EXPECT_TRUE(isLit("Shape13"));
    EXPECT_TRUE(hasLogged("Channel 3: protection tripped"));
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, LosesWhatWasOnItsWayWithTheLink) {
    run();
    person_.click(id("Command12"));
    pass(20);
    host_->set(Fault::linkLoss, true);
    pass(1000);
    host_->set(Fault::linkLoss, false);
    pass(500);
    EXPECT_TRUE(isLit("shpConnected"));
    EXPECT_FALSE(isLit("Shape16"));
}

TEST_F(HostTest, GivesUpWhatABreakOfTheLinkSwallowedThatNobodyNoticed) {
    run();
    constexpr Integer kMoves[] = {20, 25};
    for (const auto* button : {"chkOnOff12", "Command12", "cmdGo12"}) person_.click(id(button));
    for (Integer position : kMoves) person_.slide(id("ZelvinSlider1"), position);
    host_->set(Fault::linkLoss, true);
    pass(50);
    host_->set(Fault::linkLoss, false);
    pass(1000);
    EXPECT_FALSE(hasLogged("Link lost"));
    EXPECT_EQ(logged("No answer: "), 4);
    EXPECT_EQ(logged("to the positive input"), 1);
    EXPECT_TRUE(isChecked("chkOnOff12"));
    EXPECT_EQ(position("ZelvinSlider1"), 18);
    host_->set(Fault::mainsFailure, true);
    pass(500);
    EXPECT_FALSE(isLit("shpOnOff"));
}

TEST_F(HostTest, LeavesTheTestTemperatureAloneWithoutALink) {
    run();
    person_.slide(id("ZelvinSlider3"), 40);
    host_->set(Fault::linkLoss, true);
    pass(1000);
    takeLines();
    pass(4000);
    EXPECT_EQ(takeLines(), Lines());
    host_->set(Fault::linkLoss, false);
    pass(4000);
    EXPECT_FALSE(takeLines().empty());
}

TEST_F(HostTest, StaysConnectedButHearsNothingInGarbledReplies) {
    run();
    host_->set(Fault::garbledReplies, true);
    person_.click(id("Command12"));
    person_.click(id("cmdReadInData"));
    pass(4000);
    EXPECT_TRUE(host_->isConnected());
    EXPECT_GT(host_->sinceLastWord(), Milliseconds(3500));
    EXPECT_FALSE(isLit("Shape16"));
    EXPECT_FALSE(hasLogged("Internal data"));
    EXPECT_EQ(logged("Garbled"), 1);
    host_->set(Fault::garbledReplies, false);
    pass(1000);
    EXPECT_TRUE(isLit("Shape16"));
    EXPECT_TRUE(hasLogged("Replies can be read again"));
    EXPECT_TRUE(hasLogged("Internal data"));
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, DoesWithoutASecondPair) {
    run();
    for (const auto* button : {"Command12", "Command11"}) person_.click(id(button));
    pass(300);
    EXPECT_FALSE(isLit("Shape34"));
    host_->set(Fault::shortOnChannel3, true);
    pass(300);
    host_->set(Fault::secondPairMissing, true);
    pass(300);
    for (const auto* lamp : {"Shape13", "Shape28", "Shape12"}) EXPECT_FALSE(isLit(lamp)) << lamp;
    const auto hasTab = [this] {
        return store_.get<Runtime::StoredTabs>(id("SSTab1")).state().enabled[2];
    };
    EXPECT_FALSE(hasTab());
    EXPECT_TRUE(isLit("Shape34"));
    person_.click(id("Command17"));
    pass(300);
    EXPECT_FALSE(isLit("Shape34"));
    EXPECT_FALSE(isLit("Shape16"));
    host_->runQuickTest();
    pass(3000);
    EXPECT_TRUE(hasLogged("6 of 6"));
    host_->set(Fault::secondPairMissing, false);
    pass(300);
    EXPECT_TRUE(hasTab());
    EXPECT_TRUE(isLit("Shape13"));
    EXPECT_TRUE(hasLogged("Channels 3 and 4 missing"));
    EXPECT_TRUE(hasLogged("Channels 3 and 4 present"));
}

TEST_F(HostTest, KeepsTheFaultsWhenAnotherAmplifierIsPicked) {
    run();
    host_->set(Fault::shortOnChannel2, true);
    store_.enable(id("Combo1"), true);
    person_.pick(id("Combo1"), u"2");
    pass(500);
    person_.click(id("cmdOnOff"));
    pass(2500);
    EXPECT_TRUE(isLit("Shape21"));
}

}  // namespace
}  // namespace Orvo::Tests
