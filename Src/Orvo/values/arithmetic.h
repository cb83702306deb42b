#pragma once

#include "Orvo/values/types.h"

namespace Orvo {

/// A whole number as an Integer. Error 6 outside -32768 to 32767.
Integer toInteger(std::int64_t value);

/// The nearest whole number, a value exactly halfway going to the even neighbour.
/// Error 6 when the result does not fit; not-a-number counts as not fitting.
Integer roundToInteger(double value);
Long roundToLong(double value);

}  // namespace Orvo
