#include "Orvo/window/controls/trace_drawing.h"

#include <algorithm>
#include <span>

#include <QList>
#include <QPainter>

#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

namespace {

using Widgets::Trace;

// std::floor is a function call wherever the compiler may not count on a newer processor.
int floorOf(double value) {
    const int towardsZero = int(value);
    return value < towardsZero ? towardsZero - 1 : towardsZero;
}

// Where a trace lies on a canvas, in pixels.
class Places {
public:
    Places(const Canvas& canvas, const Trace& trace) : canvas_(canvas), trace_(trace) {}

    [[nodiscard]] std::size_t count() const { return trace_.samples.size(); }
    [[nodiscard]] int column(std::size_t sample) const {
        return floorOf(double(trace_.x(sample)) * canvas_.across);
    }
    [[nodiscard]] int row(Integer value) const {
        return floorOf(double(trace_.y(value)) * canvas_.down);
    }
    [[nodiscard]] QPoint of(std::size_t sample) const {
        return {column(sample), row(trace_.samples[sample])};
    }

    // Where the samples end that share the column of the first: about at the guess.
    [[nodiscard]] std::size_t endOfColumn(std::size_t first, std::size_t guess) const {
        const int its = column(first);
        std::size_t end = std::clamp(guess, first + 1, count());
        while (column(end - 1) != its) --end;
        while (end < count() && column(end) == its) ++end;
        return end;
    }

    // Fewer samples than columns jump over some; then there must be lines between them.
    [[nodiscard]] bool areInEveryColumn() const {
        return column(count() - 1) - column(0) + 2 < int(count());
    }

private:
    const Canvas& canvas_;
    const Trace& trace_;
};

// The rows that a trace covers in a column.
struct Stretch {
    int top = 0;
    int bottom = 0;

    // On its way to a sample in the next column, a line stays in this one up to the row beside it.
    void reachFor(int row) {
        top = std::min(top, row + 1);
        bottom = std::max(bottom, row - 1);
    }
};

// Only the least and the greatest are mapped to rows, and the compiler finds them eight at a time.
Stretch stretchOf(std::span<const Integer> samples, const Places& places) {
    Integer least = samples.front();
    Integer greatest = least;
    for (const Integer sample : samples) {
        least = std::min(least, sample);
        greatest = std::max(greatest, sample);
    }
    return {places.row(least), places.row(greatest)};
}

// Down the columns: most are one pixel wide.
void fill(QImage& picture, QRect rect, QRgb colour) {
    const QRect within = rect & picture.rect();
    const qsizetype stride = picture.bytesPerLine() / qsizetype(sizeof(QRgb));
    QRgb* const first = reinterpret_cast<QRgb*>(picture.bits()) + within.top() * stride;
    for (int x = within.left(); x <= within.right(); ++x) {
        QRgb* pixel = first + x;
        for (int rows = within.height(); rows > 0; --rows, pixel += stride) *pixel = colour;
    }
}

void drawColumns(const Canvas& canvas, const Trace& trace, const Places& places) {
    const std::span<const Integer> samples = trace.samples;
    const int thickness = canvas.thickness();
    const QRgb colour = toQt(trace.colour).rgb();
    for (std::size_t first = 0, end = 0, guess = 1; first < samples.size(); first = end) {
        end = places.endOfColumn(first, guess);
        guess = end + (end - first);
        Stretch stretch = stretchOf(samples.subspan(first, end - first), places);
        if (end < samples.size()) stretch.reachFor(places.row(samples[end]));
        const int height = stretch.bottom - stretch.top + thickness;
        fill(canvas.picture, {places.column(first), stretch.top, thickness, height}, colour);
    }
}

void drawLines(const Canvas& canvas, const Trace& trace, const Places& places) {
    QList<QLine> lines;
    for (std::size_t i = 1; i < places.count(); ++i) {
        lines.append(QLine(places.of(i - 1), places.of(i)));
    }
    QPainter painter(&canvas.picture);
    painter.setPen(toQt(trace.colour));
    for (int right = 0; right < canvas.thickness(); ++right) {
        for (int below = 0; below < canvas.thickness(); ++below) {
            painter.translate(right, below);
            painter.drawLines(lines);
            painter.translate(-right, -below);
        }
    }
}

}  // namespace

int Canvas::thickness() const { return qMax(1, qRound(down)); }

void drawTrace(const Canvas& canvas, const Trace& trace) {
    const Places places(canvas, trace);
    if (places.areInEveryColumn()) {
        drawColumns(canvas, trace, places);
    } else {
        drawLines(canvas, trace, places);
    }
}

}  // namespace Orvo::Window
