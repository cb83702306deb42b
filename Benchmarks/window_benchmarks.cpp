#include <vector>

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "Orvo/window/controls/trace_lines.h"

// Painting a trace in one pass, against painting a line for each of its segments.
namespace Orvo::Window {
namespace {

std::vector<Widgets::Point> noise(std::int64_t samples) {
    std::vector<Widgets::Point> points(static_cast<std::size_t>(samples));
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {30 + 165 * float(i + 1) / float(points.size()), float(i * 7919 % 95)};
    }
    return points;
}

template <class Paint>
void paintTrace(benchmark::State& state, Paint paint) {
    QImage image(195, 95, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    const auto points = noise(state.range(0));
    for ([[maybe_unused]] auto _ : state) paint(painter, points);
}

void inOnePass(benchmark::State& state) {
    paintTrace(state, [](QPainter& painter, std::span<const Widgets::Point> points) {
        drawLines(painter, traceLines(points, 1, 1), 1);
    });
}

void segmentBySegment(benchmark::State& state) {
    paintTrace(state, [](QPainter& painter, std::span<const Widgets::Point> points) {
        for (std::size_t i = 1; i < points.size(); ++i) {
            drawLines(painter, traceLines(points.subspan(i - 1, 2), 1, 1), 1);
        }
    });
}

BENCHMARK(inOnePass)->Arg(500)->Arg(32767);
BENCHMARK(segmentBySegment)->Arg(500)->Arg(32767);

}  // namespace
}  // namespace Orvo::Window
