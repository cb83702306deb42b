#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, MutesWhenTheAmplifierConfirms) {
    run();
    const auto muted = [this] {
        std::string lamps;
        for (Integer channel = 0; channel <= 4; ++channel) {
            if (panel_.Mute(channel)) lamps += std::to_string(channel);
        }
        return lamps;
    };
    const std::pair<Widgets::ButtonRef, const char*> rows[] = {
        {channel(2).muteButton, "2"},  {channel(3).muteButton, "23"}, {channel(2).muteButton, "3"},
        {kCommon.muteButton, "01234"}, {kCommon.muteButton, ""},
    };
    for (const auto& [button, lamps] : rows) {
        store_.perform(Deed::click(button));
        pass(200);
        EXPECT_EQ(muted(), lamps);
    }
    store_.perform(Deed::click(channel(1).muteButton));
    EXPECT_FALSE(isLit(channel(1).muteLamp));
}

TEST_F(HostTest, SilencesWhatIsMuted) {
    run();
    EXPECT_GT(swing(channel(1).scope).highest, 5);
    store_.perform(Deed::click(channel(1).muteButton));
    pass(300);
    EXPECT_NEAR(swing(channel(1).scope).highest, 0, 1);
    EXPECT_TRUE(isLit(channel(1).signalLamp));
}

TEST_F(HostTest, ShowsTheVolumeThatIsConfirmedAndLeavesAHeldSliderAlone) {
    run();
    const auto readout = [this] { return digits(channel(1).volume); };
    EXPECT_EQ(readout(), "06");
    EXPECT_EQ(position(channel(1).volumeSlider), 18);
    store_.perform(Deed::hold(channel(1).volumeSlider));
    store_.perform(Deed::move(channel(1).volumeSlider, 10));
    EXPECT_EQ(readout(), "06");
    pass(300);
    EXPECT_EQ(readout(), "00");
    EXPECT_EQ(position(channel(1).volumeSlider), 10);
    EXPECT_FALSE(hasLogged("instead of"));
    store_.perform(Deed::drop(channel(1).volumeSlider));
    pass(20);
    EXPECT_EQ(position(channel(1).volumeSlider), 15);
    EXPECT_EQ(logged("Channel 1: 0 dB instead of 10 dB"), 1);
    store_.perform(Deed::move(channel(1).volumeSlider, 21));
    pass(200);
    EXPECT_EQ(readout(), "12");
    EXPECT_EQ(logged("instead of"), 1);
    EXPECT_EQ(caption(channel(1).volume.sign.value()), u"-");
}

TEST_F(HostTest, DoesNotPullBackASliderThatIsMovedFasterThanTheAmplifierAnswers) {
    run();
    for (Integer position = 19; position <= 28; ++position) {
        store_.perform(Deed::move(channel(3).volumeSlider, position));
        pass(20);
        EXPECT_EQ(this->position(channel(3).volumeSlider), position);
    }
    pass(300);
    EXPECT_EQ(position(channel(3).volumeSlider), 28);
    EXPECT_EQ(digits(channel(3).volume), "26");
}

TEST_F(HostTest, PutsASliderBackThatWasMovedWithoutALink) {
    run();
    store_.perform(Deed::slide(channel(1).volumeSlider, 25));
    host_->set(Fault::linkLoss, true);
    pass(1000);
    store_.perform(Deed::slide(channel(2).volumeSlider, 25));
    pass(20);
    EXPECT_EQ(logged("Not connected"), 1);
    for (const auto slider : {channel(1).volumeSlider, channel(2).volumeSlider})
        EXPECT_EQ(position(slider), 18);
}

}  // namespace
}  // namespace Orvo::Tests
