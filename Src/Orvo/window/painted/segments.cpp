#include "Orvo/window/painted/segments.h"

namespace Orvo::Window {

namespace {

constexpr double kLeft = 2.6;
constexpr double kRight = 9.4;
constexpr double kTop = 1.9;
constexpr double kMiddle = 7.5;
constexpr double kBottom = 13.1;
constexpr double kHalf = 1.05;  // of a segment's thickness
constexpr double kGap = 0.25;   // between two segments' tips
constexpr double kSlant = 0.07;

QPolygonF horizontal(double y) {
    const double from = kLeft + kGap;
    const double to = kRight - kGap;
    return {{{from, y},
             {from + kHalf, y - kHalf},
             {to - kHalf, y - kHalf},
             {to, y},
             {to - kHalf, y + kHalf},
             {from + kHalf, y + kHalf}}};
}

QPolygonF vertical(double x, double top, double bottom) {
    const double from = top + kGap;
    const double to = bottom - kGap;
    return {{{x, from},
             {x + kHalf, from + kHalf},
             {x + kHalf, to - kHalf},
             {x, to},
             {x - kHalf, to - kHalf},
             {x - kHalf, from + kHalf}}};
}

QPolygonF upright(int segment) {
    switch (segment) {
        case 0:
            return horizontal(kTop);
        case 1:
            return vertical(kRight, kTop, kMiddle);
        case 2:
            return vertical(kRight, kMiddle, kBottom);
        case 3:
            return horizontal(kBottom);
        case 4:
            return vertical(kLeft, kMiddle, kBottom);
        case 5:
            return vertical(kLeft, kTop, kMiddle);
        default:
            return horizontal(kMiddle);
    }
}

}  // namespace

QPolygonF segmentOutline(int segment) {
    QPolygonF outline = upright(segment);
    for (QPointF& corner : outline) corner.rx() += (kMiddle - corner.y()) * kSlant;
    return outline;
}

}  // namespace Orvo::Window
