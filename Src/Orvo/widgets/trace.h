#pragma once

#include <cstddef>
#include <vector>

#include "Orvo/values/types.h"

namespace Orvo::Widgets {

/// A position on a picture surface, in its scale (pixels), from the top left corner.
struct Point {
    float x = 0;
    float y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

/// The strip at the left of a surface that a trace leaves free, in pixels.
constexpr int kTraceMargin = 30;

constexpr double kGain = 1.07;
constexpr double kOffset = 8.96;
constexpr double kFullScale = 255.0;

/// Where a sample's value lies on a surface of this height in pixels, downwards: the greater, the
/// lower.
constexpr double traceY(Integer value, double height) {
    return (value * kGain - kOffset) * height / kFullScale;
}

/// And back: the value, between two samples', that lies there.
constexpr double sampleAt(double y, double height) {
    return (y * kFullScale / height + kOffset) / kGain;
}

/// The first samples of an array whose indexes start at 1, side by side on a surface: sample i of
/// the upper bound U lies at x = 30 + (width - 30) i / U.
struct Trace {
    std::vector<Integer> samples;
    Long upperBound = 0;  ///< not below the number of samples
    float width = 0;      ///< the surface's, in pixels; above the margin
    float height = 0;
    Colour colour;

    /// Where the sample with that place lies, counted from 0.
    [[nodiscard]] constexpr Point at(std::size_t place) const {
        return {x(place), y(samples[place])};
    }
    /// Never less than the one before it.
    [[nodiscard]] constexpr float x(std::size_t place) const {
        const double room = double{width} - kTraceMargin;
        const auto index = static_cast<Long>(place) + 1;
        return static_cast<float>(kTraceMargin + room * index / upperBound);
    }
    [[nodiscard]] constexpr float y(Integer sample) const {
        return static_cast<float>(traceY(sample, double{height}));
    }

    friend bool operator==(const Trace&, const Trace&) = default;
};

}  // namespace Orvo::Widgets
