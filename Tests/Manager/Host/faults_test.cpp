#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

// What a fault shows, and that it's gone after it.
struct Case {
    Fault fault;
    int untilShown;  // milliseconds
    Widgets::ShapeRef lamp;
    bool isLitByFault;
    int untilGone;
    const char* log;
    const char* logAfter;
};

void PrintTo(const Case& one, std::ostream* out) {
    *out << one.log << ": " << Layout::describe(one.lamp).name;
}

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
    {Fault::mainsFailure, 300, pair(2).mainsLamp, false, 300, "Mains failure", "Mains present"},
    {Fault::mainsFailure, 2000, pair(2).clockLamp, false, 3000, "Mains failure", "Mains present"},
    {Fault::shortOnChannel1, 200, channel(1).protectionLamp, true, 2500, "1: protection trip", "1: protection clear"},
    {Fault::shortOnChannel3, 200, kCommon.protectionLamp, true, 2500, "3: protection trip", "3: protection clear"},
    {Fault::shortOnChannel4, 200, channel(4).protectionLamp, true, 2500, "4: protection trip", "4: protection clear"},
    {Fault::overTemperature, 60'000, channel(3).protectionLamp, true, 90'000, "3: protection trip", "3: protection clear"},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(OfTheAmplifier, Faults, testing::ValuesIn(kCases));

TEST_F(HostTest, SwitchesOnAgainWhenTheMainsReturn) {
    run();
    host_->set(Fault::mainsFailure, true);
    pass(8000);
    EXPECT_FALSE(isLit(kCommon.powerLamp));
    EXPECT_LT(positivePower(), 10);
    EXPECT_EQ(digits(pair(1).positiveAux), "000");
    EXPECT_NEAR(swing(channel(1).scope).highest, 0, 1);
    host_->set(Fault::mainsFailure, false);
    pass(300);
    EXPECT_TRUE(isLit(kCommon.powerLamp));
    EXPECT_FALSE(isLit(pair(1).readyLamp));
    pass(2500);
    EXPECT_TRUE(isLit(pair(1).readyLamp));
}

TEST_F(HostTest, ShowsALostLinkAndStopsUntilItReturns) {
    run();
    host_->set(Fault::linkLoss, true);
    pass(500);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    pass(500);
    EXPECT_FALSE(isLit(kCommon.linkLamp));
    EXPECT_TRUE(hasLogged("Link lost"));
    const auto before = log().size();
    // The last that is known stays, whatever happens to it.
    panel_.VPPower(1, 999);
    panel_.Mute(2, true);
    panel_.VolumeSlider(2, -20);
    store_.perform(Deed::slide(pair(1).testSlider, 95));
    host_->set(Fault::shortOnChannel3, true);
    pass(5000);
    EXPECT_EQ(positivePower(), 999);
    EXPECT_EQ(log().size(), before);
    EXPECT_FALSE(isLit(channel(3).protectionLamp));
    EXPECT_FALSE(host_->sinceLastWord());
    host_->set(Fault::linkLoss, false);
    pass(500);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    EXPECT_NEAR(positivePower(), 118, 2);
    EXPECT_FALSE(isLit(channel(2).muteLamp));
    EXPECT_EQ(position(channel(2).volumeSlider), 18);
    EXPECT_TRUE(isLit(channel(3).protectionLamp));
    EXPECT_TRUE(hasLogged("Channel 3: protection tripped"));
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, GivesUpWhatABreakOfTheLinkSwallowedThatNobodyNoticed) {
    run();
    constexpr Integer kMoves[] = {20, 25};
    for (const auto button :
         {pair(1).powerCheck.id, channel(1).muteButton.id, pair(1).startButton.id})
        store_.perform(Deed::click(button));
    for (Integer position : kMoves) store_.perform(Deed::slide(channel(1).volumeSlider, position));
    host_->set(Fault::linkLoss, true);
    pass(50);
    host_->set(Fault::linkLoss, false);
    pass(1000);
    EXPECT_FALSE(hasLogged("Link lost"));
    EXPECT_EQ(logged("No answer: "), 4);
    EXPECT_EQ(logged("to the positive input"), 1);
    EXPECT_TRUE(isChecked(pair(1).powerCheck));
    EXPECT_EQ(position(channel(1).volumeSlider), 18);
    host_->set(Fault::mainsFailure, true);
    pass(500);
    EXPECT_FALSE(isLit(kCommon.powerLamp));
}

TEST_F(HostTest, LeavesTheTestTemperatureAloneWithoutALink) {
    run();
    store_.perform(Deed::slide(pair(1).testSlider, 40));
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
    store_.perform(Deed::click(channel(1).muteButton));
    store_.perform(Deed::click(kCommon.internalDataButton));
    pass(4000);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    EXPECT_GT(host_->sinceLastWord(), Milliseconds(3500));
    EXPECT_FALSE(isLit(channel(1).muteLamp));
    EXPECT_FALSE(hasLogged("Internal data"));
    EXPECT_EQ(logged("Garbled"), 1);
    host_->set(Fault::garbledReplies, false);
    pass(1000);
    EXPECT_TRUE(isLit(channel(1).muteLamp));
    EXPECT_TRUE(hasLogged("Replies can be read again"));
    EXPECT_TRUE(hasLogged("Internal data"));
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, DoesWithoutASecondPair) {
    run();
    for (const auto button : {channel(1).muteButton, channel(2).muteButton})
        store_.perform(Deed::click(button));
    pass(300);
    EXPECT_FALSE(isLit(kCommon.muteLamp));
    host_->set(Fault::shortOnChannel3, true);
    pass(300);
    host_->set(Fault::secondPairMissing, true);
    pass(300);
    for (const auto lamp : {channel(3).protectionLamp, kCommon.protectionLamp, pair(2).readyLamp})
        EXPECT_FALSE(isLit(lamp)) << lamp;
    const auto hasTab = [this] {
        return store_.get<Runtime::StoredTabs>(kTabs).state().enabled[2];
    };
    EXPECT_FALSE(hasTab());
    EXPECT_TRUE(isLit(kCommon.muteLamp));
    store_.perform(Deed::click(kCommon.muteButton));
    pass(300);
    EXPECT_FALSE(isLit(kCommon.muteLamp));
    EXPECT_FALSE(isLit(channel(1).muteLamp));
    host_->runQuickTest();
    pass(3000);
    EXPECT_TRUE(hasLogged("6 of 6"));
    host_->set(Fault::secondPairMissing, false);
    pass(300);
    EXPECT_TRUE(hasTab());
    EXPECT_TRUE(isLit(channel(3).protectionLamp));
    EXPECT_TRUE(hasLogged("Channels 3 and 4 missing"));
    EXPECT_TRUE(hasLogged("Channels 3 and 4 present"));
}

TEST_F(HostTest, KeepsTheFaultsWhenAnotherAmplifierIsPicked) {
    run();
    host_->set(Fault::shortOnChannel2, true);
    store_.enable(kCommon.amplifierIds, true);
    store_.perform(Deed::pick(kCommon.amplifierIds, u"2"));
    pass(500);
    store_.perform(Deed::click(kCommon.powerButton));
    pass(2500);
    EXPECT_TRUE(isLit(channel(2).protectionLamp));
}

}  // namespace
}  // namespace Orvo::Tests
