#include "Runtime/Qt/trace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvo::Window {

namespace {

// In the order of a column's points: first, then the two extremes as they came, then last.
void appendColumn(QPolygonF& trace, const QPointF* first, const QPointF* end) {
    const auto byHeight = [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); };
    const auto [low, high] = std::minmax_element(first, end, byHeight);
    const std::array kept{first, std::min(low, high), std::max(low, high), end - 1};
    const QPointF* previous = nullptr;
    for (const QPointF* point : kept) {
        if (point != previous) trace.append(*point);
        previous = point;
    }
}

}  // namespace

QPolygonF traceOnScreen(std::span<const Widgets::Point> points, double across, double down) {
    QPolygonF all;
    QPolygonF trace;
    all.reserve(qsizetype(points.size()));
    for (const auto& [x, y] : points) all.append({double(x) * across, double(y) * down});
    const QPointF* const end = all.constData() + all.size();
    for (const QPointF* first = all.constData(); first != end;) {
        const double column = std::floor(first->x());
        const auto isBeyond = [&](const QPointF& point) { return std::floor(point.x()) != column; };
        const QPointF* next = std::find_if(first, end, isBeyond);
        appendColumn(trace, first, next);
        first = next;
    }
    return trace;
}

}  // namespace Orvo::Window
