#pragma once

#include <array>
#include <cstddef>

#include "Orvo/values/integer_array.h"

namespace Orvo::Simulator {

constexpr std::size_t kSamplesPerFrame = 240;

/// The sample that the panel draws nearest to a voltage's place on its grid: 134 for 0 V, less for
/// more; 9 to 246 can be seen.
Integer sampleOf(double volts);

/// A value at each sample of a frame, from the left end of the screen to the right one.
using ScopeLine = std::array<double, kSamplesPerFrame>;

/// The line that a function of the place has: 0 the left, 1 the right end.
template <class ValueAt>
ScopeLine scopeLine(const ValueAt& valueAt) {
    ScopeLine line{};
    for (std::size_t i = 0; i < line.size(); ++i) {
        line[i] = valueAt(static_cast<double>(i) / static_cast<double>(line.size() - 1));
    }
    return line;
}

/// The frame of a line in volts. The first sample has index 1.
IntegerArray scopeFrame(const ScopeLine& volts);

}  // namespace Orvo::Simulator
