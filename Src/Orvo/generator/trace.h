#pragma once

#include <span>
#include <vector>

#include "Orvo/values/types.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo {

/// The strip at the left of a scope that a trace leaves to the grid's labels, in pixels.
constexpr int kTraceMargin = 30;

constexpr double kGain = 1.07;
constexpr double kOffset = 8.96;
constexpr double kFullScale = 255.0;

/// Where a sample's value lies on a surface of this height in pixels, downwards.
constexpr double traceY(Integer value, double height) {
    return (value * kGain - kOffset) * height / kFullScale;
}

/// And back: the value, between two samples', that lies there.
constexpr double sampleAt(double y, double height) {
    return (y * kFullScale / height + kOffset) / kGain;
}

/// Where samples lie on a surface of this size in pixels.
///
/// `samples` are those with index 1, 2, …; sample i of the array's upper bound U lies at
/// x = 30 + (width - 30) i / U.
std::vector<Widgets::Point> tracePoints(std::span<const Integer> samples, Long upperBound,
                                        float width, float height);

}  // namespace Orvo
