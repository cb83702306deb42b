#include "Manager/Simulator/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, BringsUpTheLinkTheMainsAndOnAskingTheAmplifier) {
    const struct {
        int wait;
        bool isConnected;
        bool hasMains;
        bool hasPower;
        bool hasRails;
        bool isReady;
    } kRows[] = {{100, false, false, false, false, false}, {300, true, true, false, false, false},
                 {0, true, true, false, false, false},     {250, true, true, true, false, false},
                 {500, true, true, true, true, false},     {1200, true, true, true, true, true}};
    for (const auto& row : kRows) {
        if (row.wait == 0) person_.click(id("cmdOnOff"));
        pass(row.wait);
        SCOPED_TRACE(host_->now().count());
        EXPECT_EQ(isLit("shpConnected"), row.isConnected);
        EXPECT_EQ(caption("lblConnected34"), row.isConnected ? u"Connected" : u"Disconnected");
        EXPECT_EQ(isLit("shpMainPresence12"), row.hasMains);
        EXPECT_EQ(isLit("shpOnOff"), row.hasPower);
        const std::string rail = digits({"LED1", "LED2", "LED25"});
        EXPECT_EQ(rail != "000" && rail != "___", row.hasRails);
        EXPECT_EQ(isLit("Shape17"), row.isReady);
        EXPECT_EQ(isLit("Shape12"), row.isReady);
    }
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
