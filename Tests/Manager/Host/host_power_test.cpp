#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, BringsUpTheLinkTheMainsAndOnAskingTheAmplifier) {
    const auto shown = [this] {
        std::string words;
        if (isLit("shpConnected")) words += "link ";
        if (caption("lblConnected34") == u"Connected") words += "connected ";
        if (isLit("shpMainPresence12")) words += "mains ";
        if (isLit("shpOnOff")) words += "power ";
        const std::string rail = digits({"LED1", "LED2", "LED25"});
        if (rail != "000" && rail != "___") words += "rail ";
        for (const auto* lamp : {"Shape17", "Shape12"}) words += isLit(lamp) ? "ready " : "";
        return words;
    };
    pass(100);
    EXPECT_EQ(shown(), "");
    pass(300);
    EXPECT_EQ(shown(), "link connected mains ");
    person_.click(id("cmdOnOff"));
    EXPECT_EQ(shown(), "link connected mains ");
    pass(250);
    EXPECT_EQ(shown(), "link connected mains power ");
    pass(500);
    EXPECT_EQ(shown(), "link connected mains power rail ");
    pass(1200);
    EXPECT_EQ(shown(), "link connected mains power rail ready ready ");
    EXPECT_TRUE(isLit("Shape6"));
    EXPECT_NEAR(positivePower(), 118, 2);
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, ShowsTheSoftStartAndTheDischarge) {
    pass(500);
    person_.click(id("chkOnOff12"));
    pass(600);
    int last = positivePower();
    for (int i = 0; i < 4; ++i) {
        pass(200);
        EXPECT_GT(positivePower(), last);
        last = positivePower();
    }
    pass(2000);
    person_.click(id("chkOnOff12"));
    pass(1000);
    EXPECT_FALSE(isLit("shpOnOff"));
    EXPECT_FALSE(isLit("Shape17"));
    EXPECT_GT(positivePower(), 20);
    pass(20'000);
    EXPECT_EQ(positivePower(), 0);
    EXPECT_NEAR(std::stoi(digits({"LED5", "LED6", "LED27"})), 24, 1);
}

TEST_F(HostTest, PutsAPowerButtonBackThatCameToNothing) {
    person_.click(id("chkOnOff12"));
    EXPECT_FALSE(isChecked("chkOnOff12"));
    EXPECT_TRUE(hasLogged("Not connected"));
    host_->set(Fault::mainsFailure, true);
    pass(500);
    person_.click(id("chkOnOff12"));
    EXPECT_TRUE(isChecked("chkOnOff12"));
    pass(500);
    EXPECT_FALSE(isChecked("chkOnOff12"));
    person_.click(id("chkOnOff12"));
    host_->set(Fault::linkLoss, true);
    pass(1000);
    EXPECT_FALSE(isChecked("chkOnOff12"));
}

TEST_F(HostTest, DoesNotFlipThePowerButtonsToAndFro) {
    run();
    for (const bool isOn : {false, true}) {
        pass(70);
        person_.click(id("chkOnOff12"));
        for (int i = 0; i < 30; ++i) {
            pass(10);
            ASSERT_EQ(isChecked("chkOnOff12"), isOn) << i;
        }
        EXPECT_EQ(isLit("shpOnOff"), isOn);
        EXPECT_EQ(isChecked("chkOnOff34"), isOn);
    }
    EXPECT_TRUE(hasLogged("Amplifier off"));
}

}  // namespace
}  // namespace Orvo::Tests
