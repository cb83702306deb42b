#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "Orvo/layout/roles.h"

namespace Orvo::Window {

enum class ZeroAt : std::uint8_t { top, bottom };

/// Up is more, on every slider. A volume slider's position counts the steps below the loudest, so
/// that its 0 is at the top; a test temperature is its slider's position, whose 0 is at the bottom.
constexpr ZeroAt zeroOf(Widgets::WidgetId slider) {
    const auto isTestSlider = [slider](const auto& pair) { return pair.testSlider == slider; };
    return std::ranges::any_of(Layout::kPairs, isTestSlider) ? ZeroAt::bottom : ZeroAt::top;
}

/// Where the middle of a slider's cap may be, and which positions that stands for.
struct SliderTrack {
    double top = 0;
    double length = 1;  ///< above 0
    int maximum = 1;
    ZeroAt zero = ZeroAt::top;

    [[nodiscard]] double capAt(int position) const {
        const double share = maximum > 0 ? double(position) / maximum : 0;
        return top + length * (zero == ZeroAt::top ? share : 1 - share);
    }
    /// The nearest position; beyond the track that of its end.
    [[nodiscard]] int positionAt(double y) const {
        const double share = std::clamp((y - top) / length, 0.0, 1.0);
        return int(std::lround(maximum * (zero == ZeroAt::top ? share : 1 - share)));
    }
    /// The change of the position that moves the cap `steps` steps up.
    [[nodiscard]] int upwards(int steps) const { return zero == ZeroAt::top ? -steps : steps; }
    [[nodiscard]] int page() const { return std::max(1, maximum / 10); }
};

}  // namespace Orvo::Window
