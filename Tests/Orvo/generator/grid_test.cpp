#include "Orvo/generator/grid.h"

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

TEST(GridMarksTest, LieEveryTenthOfTheHeight) {
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

}  // namespace
}  // namespace Orvo::Tests
