#include <cmath>
#include <functional>
#include <numeric>
#include <random>
#include <span>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "Orvo/window/controls/trace_drawing.h"
#include "Orvo/window/drawing/slider_track.h"

namespace Orvo::Window {
namespace {

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

constexpr double kWidth = 195;
constexpr double kHeight = 95;

QImage blank(double zoom) {
    QImage picture(qRound(kWidth * zoom), qRound(kHeight * zoom), QImage::Format_RGB32);
    picture.fill(Qt::black);
    return picture;
}

struct Segments {
    QImage picture;
    int longFalls = 0;  // each of which Qt leaves a row too late
};

// A line for each segment, as squares in whole pixels.
Segments inSegments(const Widgets::Trace& trace, double zoom) {
    Segments segments{blank(zoom)};
    QPainter painter(&segments.picture);
    painter.setPen(Qt::green);
    const auto pixel = [&](std::size_t i) {
        return QPoint(int(std::floor(trace.at(i).x * (segments.picture.width() / kWidth))),
                      int(std::floor(trace.at(i).y * (segments.picture.height() / kHeight))));
    };
    const int thickness = qRound(zoom);
    for (std::size_t i = 1; i < trace.samples.size(); ++i) {
        const QLine segment(pixel(i - 1), pixel(i));
        if (segment.dy() > 200) ++segments.longFalls;
        for (int square = 0; square < thickness * thickness; ++square) {
            painter.drawLine(segment.translated(square % thickness, square / thickness));
        }
    }
    return segments;
}

int differingPixels(const QImage& one, const QImage& other) {
    const auto pixelsOf = [](const QImage& picture) {
        return std::span(reinterpret_cast<const QRgb*>(picture.constBits()),
                         std::size_t(picture.width() * picture.height()));
    };
    return std::transform_reduce(pixelsOf(one).begin(), pixelsOf(one).end(),
                                 pixelsOf(other).begin(), 0, std::plus(), std::not_equal_to());
}

TEST(DrawTraceTest, GivesThePictureOfItsSegments) {
    std::minstd_rand random(1);
    const auto any = [&](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    const struct {
        const char* label;
        std::function<int(int)> valueAt;
    } kWaves[] = {
        {"sine", [](int i) { return qRound(127 + 115 * std::sin(i * 0.07)); }},
        {"noise", [&](int) { return any(0, 255); }},
        {"square", [](int i) { return i / 50 % 2 == 0 ? 20 : 240; }},
        {"ramp", [](int i) { return i % 256; }},
        {"falling", [](int i) { return -i % 997; }},
        {"far out", [&](int) { return any(0, 9) == 0 ? any(-32768, 32767) : any(0, 255); }},
    };
    for (const auto& wave : kWaves) {
        for (const int count : {2, 37, 166, 167, 248, 500, 3000}) {
            Widgets::Trace trace{{}, count, kWidth, kHeight, rgb(0, 255, 0)};
            for (int i = 0; i < count; ++i) trace.samples.push_back(Integer(wave.valueAt(i)));
            for (const double zoom : {1.0, 1.25, 1.5, 2.0, 4.0}) {
                QImage picture = blank(zoom);
                drawTrace({picture, picture.width() / kWidth, picture.height() / kHeight}, trace);
                const auto [expected, longFalls] = inSegments(trace, zoom);
                EXPECT_LE(differingPixels(picture, expected), 2 + longFalls)
                    << wave.label << ", " << count << " samples at " << zoom;
            }
        }
    }
}

}  // namespace
}  // namespace Orvo::Window
