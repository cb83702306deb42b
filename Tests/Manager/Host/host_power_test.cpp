#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, BringsUpTheLinkTheMainsAndOnAskingTheAmplifier) {
    const auto shown = [this] {
        std::string words;
        if (isLit(kCommon.linkLamp)) words += "link ";
        if (caption(pair(2).linkText) == u"Connected") words += "connected ";
        if (isLit(pair(1).mainsLamp)) words += "mains ";
        if (isLit(kCommon.powerLamp)) words += "power ";
        const std::string rail = digits(pair(1).positivePower);
        if (rail != "000" && rail != "___") words += "rail ";
        for (const auto lamp : {pair(1).readyLamp, pair(2).readyLamp})
            words += isLit(lamp) ? "ready " : "";
        return words;
    };
    pass(100);
    EXPECT_EQ(shown(), "");
    pass(300);
    EXPECT_EQ(shown(), "link connected mains ");
    store_.perform(Deed::click(kCommon.powerButton));
    EXPECT_EQ(shown(), "link connected mains ");
    pass(250);
    EXPECT_EQ(shown(), "link connected mains power ");
    pass(500);
    EXPECT_EQ(shown(), "link connected mains power rail ");
    pass(1200);
    EXPECT_EQ(shown(), "link connected mains power rail ready ready ");
    EXPECT_TRUE(isLit(pair(1).clockLamp));
    EXPECT_NEAR(positivePower(), 118, 2);
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, ShowsTheSoftStartAndTheDischarge) {
    pass(500);
    store_.perform(Deed::click(pair(1).powerCheck));
    pass(600);
    int last = positivePower();
    for (int i = 0; i < 4; ++i) {
        pass(200);
        EXPECT_GT(positivePower(), last);
        last = positivePower();
    }
    pass(2000);
    store_.perform(Deed::click(pair(1).powerCheck));
    pass(1000);
    EXPECT_FALSE(isLit(kCommon.powerLamp));
    EXPECT_FALSE(isLit(pair(1).readyLamp));
    EXPECT_GT(positivePower(), 20);
    pass(20'000);
    EXPECT_EQ(positivePower(), 0);
    EXPECT_NEAR(std::stoi(digits(pair(1).positiveAux)), 24, 1);
}

TEST_F(HostTest, PutsAPowerButtonBackThatCameToNothing) {
    store_.perform(Deed::click(pair(1).powerCheck));
    EXPECT_FALSE(isChecked(pair(1).powerCheck));
    EXPECT_TRUE(hasLogged("Not connected"));
    host_->set(Fault::mainsFailure, true);
    pass(500);
    store_.perform(Deed::click(pair(1).powerCheck));
    EXPECT_TRUE(isChecked(pair(1).powerCheck));
    pass(500);
    EXPECT_FALSE(isChecked(pair(1).powerCheck));
    store_.perform(Deed::click(pair(1).powerCheck));
    host_->set(Fault::linkLoss, true);
    pass(1000);
    EXPECT_FALSE(isChecked(pair(1).powerCheck));
}

TEST_F(HostTest, DoesNotFlipThePowerButtonsToAndFro) {
    run();
    for (const bool isOn : {false, true}) {
        pass(70);
        store_.perform(Deed::click(pair(1).powerCheck));
        for (int i = 0; i < 30; ++i) {
            pass(10);
            ASSERT_EQ(isChecked(pair(1).powerCheck), isOn) << i;
        }
        EXPECT_EQ(isLit(kCommon.powerLamp), isOn);
        EXPECT_EQ(isChecked(pair(2).powerCheck), isOn);
    }
    EXPECT_TRUE(hasLogged("Amplifier off"));
}

}  // namespace
}  // namespace Orvo::Tests
