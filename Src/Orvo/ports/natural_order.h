#pragma once

#include "Orvo/values/types.h"

namespace Orvo::Runtime {

/// Whether a name comes before another where people sort them: runs of digits count as numbers
/// (ttyS2 before ttyS10), all else character by character.
bool naturallyBefore(StringView left, StringView right);

}  // namespace Orvo::Runtime
