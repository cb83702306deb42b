#pragma once

#include <string>
#include <string_view>

#include "Orvo/store/store.h"

namespace Orvo::Script {

/// Begins the comment on what can't be brought back.
inline constexpr std::string_view kNotBrought = "not brought here: ";

/// Panel script that brings a fresh panel to what this one shows, the times to its timers' next
/// ticks included; nothing, when it is fresh. A comment at its end tells of each widget that can't
/// be brought there, and how it is.
std::string presentState(const Runtime::Store& store, Boolean readOnly);

}  // namespace Orvo::Script
