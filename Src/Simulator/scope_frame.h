#pragma once

#include <cstddef>
#include <functional>

#include "Orvo/values/integer_array.h"

namespace Orvo::Simulator {

constexpr std::size_t kSamplesPerFrame = 240;

/// The sample that a voltage is drawn as, so that the trace agrees with the marks of the panel's
/// grid: 30 V are a tenth of the grid's height, 0 V its fifth mark. About 134 stands for 0 V;
/// larger samples lie lower, 8 to 247 can be seen.
Integer sampleOf(double volts);

/// And back.
double voltsOf(Integer sample);

/// A frame of a voltage, which is a function of the place on the screen: 0 the left, 1 the right
/// end. The first sample has index 1.
IntegerArray scopeFrame(const std::function<double(double place)>& volts);

}  // namespace Orvo::Simulator
