#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "Orvo/window/controls/trace_lines.h"
#include "Orvo/window/drawing/slider_track.h"

namespace Orvo::Window {
namespace {

TEST(SliderTrack, PositionsAndPlacesBelongTogether) {
    for (const ZeroAt zero : {ZeroAt::top, ZeroAt::bottom}) {
        for (const int maximum : {30, 100}) {
            const SliderTrack track{8, 48, maximum, zero};
            for (int position = 0; position <= maximum; ++position) {
                EXPECT_EQ(track.positionAt(track.capAt(position)), position);
            }
        }
    }
}

TEST(SliderTrack, BeyondTheTrackIsItsEnd) {
    const SliderTrack track{8, 48, 30, ZeroAt::bottom};
    EXPECT_EQ(track.positionAt(-100), 30);
    EXPECT_EQ(track.positionAt(1000), 0);
    EXPECT_EQ((SliderTrack{8, 48, 0, ZeroAt::top}.capAt(0)), 8) << "no range at all";
}

QImage picture(const QList<QLine>& lines, int thickness) {
    QImage image(390, 190, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    drawLines(painter, lines, thickness);
    return image;
}

std::vector<Widgets::Point> trace(std::size_t samples, float (*valueAt)(std::size_t)) {
    std::vector<Widgets::Point> points(samples);
    for (std::size_t i = 0; i < samples; ++i) {
        points[i] = {30 + 165 * float(i + 1) / float(samples), valueAt(i)};
    }
    return points;
}

TEST(TraceLines, IsThePictureOfItsSegmentsPixelForPixel) {
    const auto sine = [](std::size_t i) { return 47 + 40 * std::sin(float(i) * 0.07F); };
    const auto square = [](std::size_t i) { return i / 50 % 2 == 0 ? 8.5F : 90.25F; };
    const auto noise = [](std::size_t i) { return float(i * 7919 % 131) - 15; };
    const auto steps = [](std::size_t i) { return float(i / 7 % 95); };
    for (const auto valueAt : {+sine, +square, +noise, +steps}) {
        for (const std::size_t samples : {2U, 37U, 165U, 500U, 5000U, 32767U}) {
            const auto points = trace(samples, valueAt);
            for (const double zoom : {1.0, 1.5, 2.0}) {
                QList<QLine> segments;
                for (std::size_t i = 1; i < samples; ++i) {
                    segments += traceLines(std::span(points).subspan(i - 1, 2), zoom, zoom);
                }
                const auto inOnePass = traceLines(points, zoom, zoom);
                EXPECT_LE(inOnePass.size(), 2 * 391);
                const int thickness = qRound(zoom);
                EXPECT_EQ(picture(inOnePass, thickness), picture(segments, thickness))
                    << samples << " samples at " << zoom;
            }
        }
    }
    EXPECT_TRUE(traceLines({}, 1, 1).isEmpty());
}

TEST(TraceLines, DrawsASegmentAsALineBetweenItsPixels) {
    const Widgets::Point points[] = {{10, 90.5F}, {14.75F, 3}, {14.9F, 20}};
    QImage expected(390, 190, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter painter(&expected);
    painter.setPen(Qt::green);
    painter.drawLine(10, 90, 14, 3);
    painter.drawLine(14, 3, 14, 20);
    EXPECT_EQ(picture(traceLines(points, 1, 1), 1), expected);
}

}  // namespace
}  // namespace Orvo::Window
