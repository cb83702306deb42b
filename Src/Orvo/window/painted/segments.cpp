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

struct Ends {
    QPointF from;
    QPointF to;
};

constexpr std::array<Ends, kSegmentCount> kUpright{{
    {{kLeft, kTop}, {kRight, kTop}},
    {{kRight, kTop}, {kRight, kMiddle}},
    {{kRight, kMiddle}, {kRight, kBottom}},
    {{kLeft, kBottom}, {kRight, kBottom}},
    {{kLeft, kMiddle}, {kLeft, kBottom}},
    {{kLeft, kTop}, {kLeft, kMiddle}},
    {{kLeft, kMiddle}, {kRight, kMiddle}},
}};

QPolygonF upright(const Ends& ends) {
    const QPointF along = (ends.to - ends.from) / (ends.to - ends.from).manhattanLength();
    const QPointF across(-along.y(), along.x());
    const QPointF tip = ends.from + along * kGap;
    const QPointF end = ends.to - along * kGap;
    const QPointF out = (along - across) * kHalf;
    const QPointF in = (along + across) * kHalf;
    return {{tip, tip + out, end - in, end, end - out, tip + in}};
}

}  // namespace

QPolygonF segmentOutline(int segment) {
    QPolygonF outline = upright(kUpright[std::size_t(segment)]);
    for (QPointF& corner : outline) corner.rx() += (kMiddle - corner.y()) * kSlant;
    return outline;
}

}  // namespace Orvo::Window
