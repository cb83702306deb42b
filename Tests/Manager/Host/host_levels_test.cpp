#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, MutesWhenTheAmplifierConfirms) {
    run();
    const auto lit = [this] {
        std::string lamps;
        for (const char* lamp : {"Shape34", "Shape16", "Shape15", "Shape11", "Shape10"}) {
            if (isLit(lamp)) lamps += lamp;
        }
        return lamps;
    };
    const std::pair<const char*, const char*> rows[] = {
        {"Command11", "Shape15"}, {"Command14", "Shape15Shape11"},
        {"Command11", "Shape11"}, {"Command17", "Shape34Shape16Shape15Shape11Shape10"},
        {"Command17", ""},
    };
    for (const auto& [button, lamps] : rows) {
        person_.click(id(button));
        pass(200);
        EXPECT_EQ(lit(), lamps) << button;
    }
    person_.click(id("Command12"));
    EXPECT_FALSE(isLit("Shape16"));
}

TEST_F(HostTest, SilencesWhatIsMuted) {
    run();
    EXPECT_GT(swing("Picture1").highest, 5);
    person_.click(id("Command12"));
    pass(300);
    EXPECT_NEAR(swing("Picture1").highest, 0, 1);
    EXPECT_TRUE(isLit("Shape22"));
}

TEST_F(HostTest, ShowsTheVolumeThatIsConfirmedAndLeavesAHeldSliderAlone) {
    run();
    const auto readout = [this] { return digits({"LED20", "LED19"}); };
    EXPECT_EQ(readout(), "06");
    EXPECT_EQ(position("ZelvinSlider1"), 18);
    person_.hold(id("ZelvinSlider1"));
    person_.move(id("ZelvinSlider1"), 10);
    EXPECT_EQ(readout(), "06");
    pass(300);
    EXPECT_EQ(readout(), "00");
    EXPECT_EQ(position("ZelvinSlider1"), 10);
    person_.drop(id("ZelvinSlider1"));
    pass(20);
    EXPECT_EQ(position("ZelvinSlider1"), 15);
    person_.move(id("ZelvinSlider1"), 21);
    pass(200);
    EXPECT_EQ(readout(), "12");
    EXPECT_EQ(caption("Label76"), u"-");
}

TEST_F(HostTest, DoesNotPullBackASliderThatIsMovedFasterThanTheAmplifierAnswers) {
    run();
    for (Integer position = 19; position <= 28; ++position) {
        person_.move(id("ZelvinSlider4"), position);
        pass(20);
        EXPECT_EQ(this->position("ZelvinSlider4"), position);
    }
    pass(300);
    EXPECT_EQ(position("ZelvinSlider4"), 28);
    EXPECT_EQ(digits({"LED9", "LED10"}), "26");
}

TEST_F(HostTest, PutsASliderBackThatWasMovedWithoutALink) {
    run();
    person_.slide(id("ZelvinSlider1"), 25);
    host_->set(Fault::linkLoss, true);
    pass(1000);
    person_.slide(id("ZelvinSlider2"), 25);
    pass(20);
    EXPECT_EQ(logged("Not connected"), 1);
    for (const auto* slider : {"ZelvinSlider1", "ZelvinSlider2"}) EXPECT_EQ(position(slider), 18);
}

}  // namespace
}  // namespace Orvo::Tests
