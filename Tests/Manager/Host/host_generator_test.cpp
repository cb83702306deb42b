#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, RoutesTheGeneratorToTheChosenInput) {
    run();
    for (const auto* slider : {"ZelvinSlider1", "ZelvinSlider2"}) person_.slide(id(slider), 15);
    const struct {
        const char* signal;
        const char* input;
        const char* driven;
        const char* other;
    } kRows[] = {
        {"opt1000hz_ch12", "optP1", "Picture1", "Picture2"},
        {"opt100hz_ch12", "optN1", "Picture1", "Picture2"},
        {"opt10000hz_ch12", "optP2", "Picture2", "Picture1"},
    };
    for (const auto& row : kRows) {
        for (const char* widget : {row.signal, row.input, "cmdGo12"}) person_.click(id(widget));
        pass(500);
        EXPECT_NEAR(swing(row.driven).highest, 105, 4) << row.signal;
        EXPECT_NEAR(swing(row.driven).lowest, -105, 4) << row.signal;
        EXPECT_LT(swing(row.other).highest, 95) << row.signal;
    }
    EXPECT_TRUE(hasLogged("Channel 1: 100 Hz to the negative input"));
}

TEST_F(HostTest, ShowsTheNegativeInputInverted) {
    run();
    const auto early = [this] { return trace("Picture3")[20].y; };
    person_.click(id("cmdGo34"));
    pass(500);
    EXPECT_LT(early(), 40);
    person_.click(id("optN3"));
    person_.click(id("cmdGo34"));
    pass(500);
    EXPECT_GT(early(), 60);
}

TEST_F(HostTest, ClipsAtTheRails) {
    run();
    person_.click(id("cmdGo12"));
    const auto flat = [this] {
        const float top = 50 - swing("Picture1").highest / 3;
        return std::ranges::count_if(trace("Picture1"),
                                     [top](auto point) { return point.y < top + 0.3F; });
    };
    const struct {
        Integer position;
        float highest;
        bool isClipped;
    } kRows[] = {{18, 64, false}, {16, 101, false}, {15, 105, true}};
    for (const auto& row : kRows) {
        person_.slide(id("ZelvinSlider1"), row.position);
        pass(500);
        EXPECT_NEAR(swing("Picture1").highest, row.highest, 3) << row.position;
        EXPECT_EQ(flat() > 40, row.isClipped) << row.position;
    }
}

TEST_F(HostTest, RunsTheThermalTestFromItsSlider) {
    run();
    person_.slide(id("ZelvinSlider3"), 95);
    pass(6000);
    EXPECT_EQ(temperature(), 95);
    for (const auto* lamp : {"Shape28", "Shape18", "Shape21"}) EXPECT_TRUE(isLit(lamp)) << lamp;
    EXPECT_FALSE(isLit("Shape13"));
    person_.slide(id("ZelvinSlider3"), 0);
    pass(3000);
    EXPECT_LT(temperature(), 40);
    for (const auto* lamp : {"Shape28", "Shape18", "Shape21"}) EXPECT_FALSE(isLit(lamp)) << lamp;
    EXPECT_TRUE(hasLogged("Channel 1: protection tripped"));
    EXPECT_TRUE(hasLogged("Channel 2: protection cleared"));
}

}  // namespace
}  // namespace Orvo::Tests
