#include "Orvo/window/controls/trace_lines.h"

#include <algorithm>

#include <QPainter>

namespace Orvo::Window {

namespace {

// std::floor is a function call wherever the compiler may not count on a newer processor.
int floorOf(double value) {
    const int towardsZero = int(value);
    return value < towardsZero ? towardsZero - 1 : towardsZero;
}

QPoint pixelOf(Widgets::Point point, double across, double down) {
    return {floorOf(double(point.x) * across), floorOf(double(point.y) * down)};
}

// What the points of one pixel column cover.
struct Column {
    explicit Column(QPoint first) : x(first.x()), top(first.y()), bottom(first.y()) {}

    void cover(int y) {
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
    [[nodiscard]] QLine line() const { return {x, top, x, bottom}; }

    int x;
    int top;
    int bottom;
};

}  // namespace

QList<QLine> traceLines(std::span<const Widgets::Point> points, double across, double down) {
    QList<QLine> lines;
    if (points.empty()) return lines;
    QPoint last = pixelOf(points.front(), across, down);
    Column column(last);
    for (const Widgets::Point& point : points.subspan(1)) {
        const QPoint next = pixelOf(point, across, down);
        if (next.x() != column.x) {
            lines.append(column.line());
            lines.append(QLine(last, next));
            column = Column(next);
        }
        column.cover(next.y());
        last = next;
    }
    lines.append(column.line());
    return lines;
}

void drawLines(QPainter& painter, const QList<QLine>& lines, int thickness) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int right = 0; right < thickness; ++right) {
        for (int below = 0; below < thickness; ++below) {
            painter.translate(right, below);
            painter.drawLines(lines);
            painter.translate(-right, -below);
        }
    }
}

}  // namespace Orvo::Window
