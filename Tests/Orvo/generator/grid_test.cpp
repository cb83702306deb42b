#include "Orvo/generator/grid.h"

#include <gtest/gtest.h>

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

using Axes = PanelTest;

TEST_F(Axes, AreDrawnMarkByMarkOverAClearedSurface) {
    panel_.DisegnaAssi(2);
    const auto& drawing = store_.get<Runtime::StoredPicture>(id("Picture2")).state().drawing;
    ASSERT_EQ(drawing.size(), 19U);
    const auto& mark = std::get<Runtime::LineSegment>(drawing[0]);
    EXPECT_EQ(mark, (Runtime::LineSegment{{1, 10}, {5, 10}, rgb(0, 150, 0)}));
    const auto& text = std::get<Runtime::DrawnText>(drawing[1]);
    EXPECT_EQ(text.text, u"120 V");
    EXPECT_EQ(text.at, (Widgets::Point{7, 5}));
    EXPECT_EQ(text.colour, rgb(0, 200, 0));
    EXPECT_EQ(text.points, 6);
    const auto& zero = std::get<Runtime::LineSegment>(drawing[8]);
    EXPECT_EQ(zero, (Runtime::LineSegment{{0, 50}, {195, 50}, rgb(0, 100, 0)}));
    EXPECT_EQ(std::get<Runtime::DrawnText>(drawing.back()).text, u"-120 V");
}

TEST_F(Axes, OfAChannelThatThereIsNotAreChannel1s) {
    const auto drawn = [this](const char* name) {
        return store_.get<Runtime::StoredPicture>(id(name)).state().drawing.size();
    };
    for (const Integer channel : {Integer{0}, Integer{5}, Integer{-1}}) {
        panel_.DisegnaFormaDOnda(1, IntegerArray(1, {1, 2}));
        panel_.DisegnaFormaDOnda(2, IntegerArray(1, {1, 2}));
        panel_.DisegnaAssi(channel);
        EXPECT_EQ(drawn("Picture1"), 19U);
        EXPECT_EQ(drawn("Picture2"), 20U);
    }
}

}  // namespace
}  // namespace Orvo::Tests
