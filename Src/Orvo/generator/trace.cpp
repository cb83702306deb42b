#include "Orvo/generator/trace.h"

#include <cstddef>

namespace Orvo {

std::vector<Widgets::Point> tracePoints(std::span<const Integer> samples, Long upperBound,
                                        float width, float height) {
    const auto count = static_cast<int>(samples.size());
    std::vector<Widgets::Point> points(samples.size());
    const double room = double{width} - kTraceMargin;
    for (int i = 0; i < count; ++i) {
        const double x = kTraceMargin + room * (i + 1) / upperBound;
        const auto at = static_cast<std::size_t>(i);
        const double y = traceY(samples[at], double{height});
        points[at] = {static_cast<float>(x), static_cast<float>(y)};
    }
    return points;
}

}  // namespace Orvo
