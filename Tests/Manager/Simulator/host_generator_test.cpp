#include <variant>

#include "Manager/Simulator/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, RoutesTheGeneratorToTheChosenInput) {
    run();
    for (const auto* slider : {"ZelvinSlider1", "ZelvinSlider2"}) person_.slide(id(slider), 15);
    const struct {
        const char* signal;
        const char* input;
        float lowest;
        float highest;
    } kRows[] = {
        {"opt1000hz_ch12", "optP1", -105, 105},
        {"opt100hz_ch12", "optN1", -105, 105},
        {"opt10000hz_ch12", "optP2", -105, 105},
    };
    for (const auto& row : kRows) {
        person_.click(id(row.signal));
        person_.click(id(row.input));
        person_.click(id("cmdGo12"));
        pass(500);
        const bool isFirst = std::string_view(row.input).back() == '1';
        const auto driven = swing(isFirst ? "Picture1" : "Picture2");
        EXPECT_NEAR(driven.highest, row.highest, 4) << row.signal;
        EXPECT_NEAR(driven.lowest, row.lowest, 4) << row.signal;
        EXPECT_LT(swing(isFirst ? "Picture2" : "Picture1").highest, 95) << row.signal;
    }
    EXPECT_TRUE(hasLogged("Channel 1: 100 Hz to the negative input"));
}

TEST_F(HostTest, ShowsTheNegativeInputInverted) {
    run();
    const auto early = [this] {
        const auto& drawing = store_.get<Runtime::StoredPicture>(id("Picture3")).state().drawing;
        return std::get<Runtime::DrawnPolyline>(drawing.back()).points[20].y;
    };
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
        const auto& drawing = store_.get<Runtime::StoredPicture>(id("Picture1")).state().drawing;
        const auto& points = std::get<Runtime::DrawnPolyline>(drawing.back()).points;
        const float top = 50 - swing("Picture1").highest / 3;
        return std::count_if(points.begin(), points.end(),
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
    person_.slide(id("ZelvinSlider3"), 80);
    pass(6000);
    EXPECT_TRUE(isLit("Shape18"));
    person_.slide(id("ZelvinSlider3"), 0);
    pass(3000);
    EXPECT_LT(temperature(), 40);
    for (const auto* lamp : {"Shape28", "Shape18", "Shape21"}) EXPECT_FALSE(isLit(lamp)) << lamp;
    EXPECT_TRUE(hasLogged("Channel 1: protection tripped"));
    EXPECT_TRUE(hasLogged("Channel 2: protection cleared"));
}

}  // namespace
}  // namespace Orvo::Tests
