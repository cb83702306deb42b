#include "Orvo/generator/grid.h"
#include "Orvo/widgets/trace.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

TEST(GridMarks, LieEveryTenthOfTheHeight) {
    const struct {
        float height = 0;
        std::size_t count = 0;
        GridMark first;
        GridMark last;
    } kRows[] = {
        {95, 9, {10, 120}, {90, -120}},         {100, 10, {10, 120}, {100, -150}},
        {85, 10, {8, 120}, {80, -150}},         {25, 12, {2, 120}, {24, -210}},
        {32767, 9, {3277, 120}, {29493, -120}},
    };
    for (const auto& row : kRows) {
        const auto marks = gridMarks(row.height);
        ASSERT_EQ(marks.size(), row.count) << row.height;
        EXPECT_EQ(marks.front(), row.first) << row.height;
        EXPECT_EQ(marks.back(), row.last) << row.height;
        EXPECT_EQ(marks[4].volts, 0) << row.height;
    }
    EXPECT_TRUE(gridMarks(5).empty());
    EXPECT_EQ(errorOf([] { gridMarks(32768); }), 6);
}

TEST(Trace, SpreadsTheSamplesOverTheSurface) {
    const Widgets::Trace trace{{128, 255, 0}, 100, 195, 95, {}};
    EXPECT_FLOAT_EQ(trace.at(0).x, 31.65F);
    EXPECT_NEAR(trace.at(0).y, 47.69, 0.005);
    EXPECT_NEAR(trace.at(1).y, 98.31, 0.005);
    EXPECT_NEAR(trace.at(2).y, -3.34, 0.005);
    EXPECT_EQ(trace.x(99), 195);
}

}  // namespace
}  // namespace Orvo::Tests
