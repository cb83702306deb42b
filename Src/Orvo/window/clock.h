#pragma once

#include <cstdint>

namespace Orvo::Window {

/// What makes a panel's timers tick: the real clock, or nothing but the store's `advance`.
enum class Clock : std::uint8_t { real, byHand };

}  // namespace Orvo::Window
