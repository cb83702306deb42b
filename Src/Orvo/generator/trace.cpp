#include "Orvo/generator/trace.h"

#include <cstddef>

namespace Orvo {
namespace {

constexpr double kGain = 1.07;
constexpr double kOffset = 8.96;
constexpr double kFullScale = 255.0;

}  // namespace

std::vector<Widgets::Point> tracePoints(std::span<const Integer> samples, Long upperBound,
                                        float width, float height) {
    std::vector<Widgets::Point> points(samples.size());
    const double room = double{width} - kTraceMargin;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double x = kTraceMargin + room * static_cast<double>(i + 1) / upperBound;
        const double y = (samples[i] * kGain - kOffset) * height / kFullScale;
        points[i] = {static_cast<float>(x), static_cast<float>(y)};
    }
    return points;
}

}  // namespace Orvo
