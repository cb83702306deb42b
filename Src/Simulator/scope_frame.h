#pragma once

#include <cstddef>
#include <functional>

#include "Orvo/values/integer_array.h"

namespace Orvo::Simulator {

constexpr std::size_t kSamplesPerFrame = 240;

/// The sample that the panel draws nearest to a voltage's place on its grid: 134 for 0 V, less for
/// more; 9 to 246 can be seen.
Integer sampleOf(double volts);

/// A frame of a voltage, which is a function of the place on the screen: 0 the left, 1 the right
/// end. The first sample has index 1.
IntegerArray scopeFrame(const std::function<double(double place)>& volts);

}  // namespace Orvo::Simulator
