#include "Orvo/window/controls/trace_drawing.h"

#include <algorithm>
#include <span>
#include <vector>

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

    // Where the samples end that lie in a column: about at the guess.
    [[nodiscard]] std::size_t endOf(int x, std::size_t guess) const {
        std::size_t end = std::min(guess, count());
        while (column(end - 1) > x) --end;
        while (end < count() && column(end) <= x) ++end;
        return end;
    }

    [[nodiscard]] std::size_t columns() const {
        return std::size_t(column(count() - 1) - column(0)) + 1;
    }
    // Fewer samples than columns jump over some; then there must be lines between them.
    [[nodiscard]] bool areInEveryColumn() const { return columns() + 1 < count(); }

private:
    const Canvas& canvas_;
    const Trace& trace_;
};

// The rows that a trace covers in each column from the first on.
struct Stretches {
    std::vector<int> tops;
    std::vector<int> bottoms;

    // Only the least and the greatest are mapped to rows, and the compiler finds them eight at a
    // time.
    void add(std::span<const Integer> samples, const Places& places) {
        Integer least = samples.front();
        Integer greatest = least;
        for (const Integer sample : samples) {
            least = std::min(least, sample);
            greatest = std::max(greatest, sample);
        }
        tops.push_back(places.row(least));
        bottoms.push_back(places.row(greatest));
    }

    // On its way to a sample in the next column, a line stays in this one up to the row beside it.
    void reachFor(int row) {
        tops.back() = std::min(tops.back(), row + 1);
        bottoms.back() = std::max(bottoms.back(), row - 1);
    }

    // What squares of so many pixels cover, each below and to the right of one.
    void thicken(int thickness) {
        for (int more = 1; more < thickness; ++more) {
            tops.push_back(tops.back());
            bottoms.push_back(bottoms.back());
            for (std::size_t i = tops.size() - 1; i > 0; --i) {
                tops[i] = std::min(tops[i], tops[i - 1]);
                bottoms[i] = std::max(bottoms[i], bottoms[i - 1]);
            }
        }
        for (int& bottom : bottoms) bottom += thickness - 1;
    }
};

Stretches stretchesOf(std::span<const Integer> samples, const Places& places) {
    Stretches stretches;
    stretches.tops.reserve(places.columns());
    stretches.bottoms.reserve(places.columns());
    std::size_t end = 0;
    std::size_t guess = 1;
    int x = places.column(0);
    for (std::size_t first = 0; first < samples.size(); first = end, ++x) {
        end = places.endOf(x, guess);
        guess = end + (end - first);
        stretches.add(samples.subspan(first, end - first), places);
        if (end < samples.size()) stretches.reachFor(places.row(samples[end]));
    }
    return stretches;
}

// Without a branch, so that the compiler does four pixels at a time.
void fillRow(std::span<QRgb> row, int y, const Stretches& stretches, QRgb colour) {
    const std::span tops(stretches.tops);
    const std::span bottoms(stretches.bottoms);
    for (std::size_t i = 0; i < row.size(); ++i) {
        const bool isCovered = bool(int(tops[i] <= y) & int(y <= bottoms[i]));
        row[i] = isCovered ? colour : row[i];
    }
}

// A dense wave covers most rows from end to end.
void fill(QImage& picture, int left, const Stretches& stretches, QRgb colour) {
    const auto width = std::min(stretches.tops.size(), std::size_t(picture.width() - left));
    const auto tops = std::ranges::minmax(std::span(stretches.tops).first(width));
    const auto bottoms = std::ranges::minmax(std::span(stretches.bottoms).first(width));
    const int last = std::min(bottoms.max, picture.height() - 1);
    for (int y = std::max(tops.min, 0); y <= last; ++y) {
        const std::span row(reinterpret_cast<QRgb*>(picture.scanLine(y)) + left, width);
        if (y >= tops.max && y <= bottoms.min) {
            std::ranges::fill(row, colour);
        } else {
            fillRow(row, y, stretches, colour);
        }
    }
}

void drawColumns(const Canvas& canvas, const Trace& trace, const Places& places) {
    Stretches stretches = stretchesOf(trace.samples, places);
    stretches.thicken(canvas.thickness());
    fill(canvas.picture, places.column(0), stretches, toQt(trace.colour).rgb());
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
