#pragma once

#include <span>
#include <vector>

#include "Orvo/values/types.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo {

/// The strip at the left of a scope that a trace leaves to the grid's labels, in pixels.
constexpr int kTraceMargin = 30;

/// Where samples lie on a surface of this size in pixels.
///
/// `samples` are those with index 1, 2, …; sample i of the array's upper bound U lies at
/// x = 30 + (width - 30) i / U, and a sample of value s at y = (s * 1.07 - 8.96) * height / 255,
/// downwards; both are computed in double precision.
std::vector<Widgets::Point> tracePoints(std::span<const Integer> samples, Long upperBound,
                                        float width, float height);

}  // namespace Orvo
