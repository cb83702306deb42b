#include <bit>
#include <cmath>

#include <gtest/gtest.h>

#include "Runtime/Qt/segments.h"
#include "Runtime/Qt/slider_track.h"
#include "Runtime/Qt/trace.h"

namespace Orvo::Window {
namespace {

TEST(SegmentsTest, TheDigitsHaveTheirSegments) {
    const int counts[] = {6, 2, 5, 5, 4, 5, 6, 3, 7, 6};
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(std::popcount(kLitSegments[std::size_t(digit)]), counts[digit]) << digit;
    }
}

// A digit's cell is narrower than its widget: the next one overlaps it.
TEST(SegmentsTest, SegmentsStayInTheirCell) {
    for (int segment = 0; segment < kSegmentCount; ++segment) {
        EXPECT_TRUE(QRectF(0, 0, 12, 15).contains(segmentOutline(segment).boundingRect()));
    }
}

TEST(SliderTrackTest, PositionsAndPlacesBelongTogether) {
    for (const ZeroAt zero : {ZeroAt::top, ZeroAt::bottom}) {
        for (const int maximum : {30, 100}) {
            const SliderTrack track{8, 48, maximum, zero};
            for (int position = 0; position <= maximum; ++position) {
                EXPECT_EQ(track.positionAt(track.capAt(position)), position);
            }
        }
    }
}

TEST(SliderTrackTest, BeyondTheTrackIsItsEnd) {
    const SliderTrack track{8, 48, 30, ZeroAt::bottom};
    EXPECT_EQ(track.positionAt(-100), 30);
    EXPECT_EQ(track.positionAt(1000), 0);
    EXPECT_EQ((SliderTrack{8, 48, 0, ZeroAt::top}.capAt(0)), 8) << "no range at all";
}

TEST(TraceTest, AFewPointsArePassedOnInPixels) {
    const Widgets::Point points[] = {{0, 0}, {10, 5}, {20, 2.5F}};
    EXPECT_EQ(traceOnScreen(points, 2, 4), QPolygonF({{0, 0}, {20, 20}, {40, 10}}));
    EXPECT_TRUE(traceOnScreen({}, 1, 1).isEmpty());
}

TEST(TraceTest, ManyPointsKeepTheirExtremes) {
    std::vector<Widgets::Point> points(32'000);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {float(i) / 320, 50 + 40 * std::sin(float(i) * 0.7F)};
    }
    const QPolygonF trace = traceOnScreen(points, 1, 1);
    EXPECT_LE(trace.size(), 4 * 100);
    EXPECT_NEAR(trace.boundingRect().top(), 10, 0.1);
    EXPECT_NEAR(trace.boundingRect().bottom(), 90, 0.1);
    EXPECT_EQ(trace.last().x(), double(points.back().x));
}

}  // namespace
}  // namespace Orvo::Window
