#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, RoutesTheGeneratorToTheChosenInput) {
    run();
    for (const auto slider : {channel(1).volumeSlider, channel(2).volumeSlider})
        store_.perform(Deed::slide(slider, 15));
    const struct {
        Widgets::OptionRef wave, input;
        Widgets::PictureRef driven, other;
    } kRows[] = {
        {pair(1).waves[1], channel(1).positive.option, channel(1).scope, channel(2).scope},
        {pair(1).waves[0], channel(1).negative.option, channel(1).scope, channel(2).scope},
        {pair(1).waves[2], channel(2).positive.option, channel(2).scope, channel(1).scope},
    };
    for (const auto& row : kRows) {
        for (const auto widget : {row.wave.id, row.input.id, pair(1).startButton.id})
            store_.perform(Deed::click(widget));
        pass(500);
        EXPECT_NEAR(swing(row.driven).highest, 105, 4) << row.wave;
        EXPECT_NEAR(swing(row.driven).lowest, -105, 4) << row.wave;
        EXPECT_LT(swing(row.other).highest, 95) << row.wave;
    }
    EXPECT_TRUE(hasLogged("Channel 1: 100 Hz to the negative input"));
}

TEST_F(HostTest, ShowsTheNegativeInputInverted) {
    run();
    const auto early = [this] { return trace(channel(3).scope)[20]; };
    store_.perform(Deed::click(pair(2).startButton));
    pass(500);
    EXPECT_LT(early(), 40);
    store_.perform(Deed::click(channel(3).negative.option));
    store_.perform(Deed::click(pair(2).startButton));
    pass(500);
    EXPECT_GT(early(), 60);
}

TEST_F(HostTest, ClipsAtTheRails) {
    run();
    store_.perform(Deed::click(pair(1).startButton));
    const auto flat = [this] {
        const float top = 50 - swing(channel(1).scope).highest / 3;
        return std::ranges::count_if(trace(channel(1).scope),
                                     [top](float y) { return y < top + 0.3F; });
    };
    const struct {
        Integer position;
        float highest;
        bool isClipped;
    } kRows[] = {{18, 64, false}, {16, 101, false}, {15, 105, true}};
    for (const auto& row : kRows) {
        store_.perform(Deed::slide(channel(1).volumeSlider, row.position));
        pass(500);
        EXPECT_NEAR(swing(channel(1).scope).highest, row.highest, 3) << row.position;
        EXPECT_EQ(flat() > 40, row.isClipped) << row.position;
    }
}

TEST_F(HostTest, RunsTheThermalTestFromItsSlider) {
    run();
    store_.perform(Deed::slide(pair(1).testSlider, 95));
    pass(6000);
    EXPECT_EQ(temperature(), 95);
    const auto lamps = {kCommon.protectionLamp, channel(1).protectionLamp,
                        channel(2).protectionLamp};
    for (const auto lamp : lamps) EXPECT_TRUE(isLit(lamp)) << lamp;
    EXPECT_FALSE(isLit(channel(3).protectionLamp));
    store_.perform(Deed::slide(pair(1).testSlider, 0));
    pass(3000);
    EXPECT_LT(temperature(), 40);
    for (const auto lamp : lamps) EXPECT_FALSE(isLit(lamp)) << lamp;
    EXPECT_TRUE(hasLogged("Channel 1: protection tripped"));
    EXPECT_TRUE(hasLogged("Channel 2: protection cleared"));
}

}  // namespace
}  // namespace Orvo::Tests
