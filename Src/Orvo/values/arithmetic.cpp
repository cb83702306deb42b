#include "Orvo/values/arithmetic.h"

#include <cmath>
#include <limits>

#include "Orvo/values/error.h"

namespace Orvo {
namespace {

template <class Whole, class Wide>
Whole narrowed(Wide value) {
    constexpr auto kLowest = static_cast<Wide>(std::numeric_limits<Whole>::min());
    constexpr auto kHighest = static_cast<Wide>(std::numeric_limits<Whole>::max());
    if (!(value >= kLowest && value <= kHighest)) throw Errors::overflow();
    return static_cast<Whole>(value);
}

// Written out rather than left to std::nearbyint, which follows the rounding mode that a host may
// have set for its thread.
double roundHalfToEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction != 0.5) return fraction < 0.5 ? below : below + 1;
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

}  // namespace

Integer toInteger(std::int64_t value) { return narrowed<Integer>(value); }
Integer roundToInteger(double value) { return narrowed<Integer>(roundHalfToEven(value)); }
Long roundToLong(double value) { return narrowed<Long>(roundHalfToEven(value)); }

}  // namespace Orvo
