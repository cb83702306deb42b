#include "Orvo/generator/grid.h"

#include <cstddef>

#include "Orvo/values/arithmetic.h"

namespace Orvo {
namespace {

constexpr double kParts = 10.0;
constexpr int kTopVolts = 120;
constexpr int kVoltsPerMark = 30;

int stepOf(float height) { return roundToInteger(height / kParts); }

}  // namespace

std::vector<GridMark> gridMarks(float height) {
    const int last = roundToInteger(height);
    const int step = stepOf(height);
    if (step <= 0) return {};
    std::vector<GridMark> marks;
    marks.reserve(static_cast<std::size_t>(last / step));
    int volts = kTopVolts;
    for (int y = step; y <= last; y += step, volts -= kVoltsPerMark) {
        marks.push_back({static_cast<Integer>(y), static_cast<Integer>(volts)});
    }
    return marks;
}

double voltsAt(double y, float height) {
    return kTopVolts - (y / stepOf(height) - 1) * kVoltsPerMark;
}

double gridY(double volts, float height) {
    return stepOf(height) * (1 + (kTopVolts - volts) / kVoltsPerMark);
}

}  // namespace Orvo
