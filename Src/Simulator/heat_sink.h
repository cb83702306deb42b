#pragma once

#include <cstdint>

#include "Simulator/figures.h"

namespace Orvo::Simulator {

/// The heat sink of a pair, with the fan that its temperature drives.
class HeatSink {
public:
    enum class Air : std::uint8_t { ambient, hot };

    /// Lets one step pass, while the pair gives off `watts`.
    void step(double watts, Air air, bool hasFan);

    /// Degrees Celsius.
    [[nodiscard]] double degrees() const { return degrees_; }
    /// The fan's speed, 0 to 1.
    [[nodiscard]] double fan() const { return fan_; }

private:
    double degrees_ = Figures::kAmbient;
    double fan_ = 0;
};

}  // namespace Orvo::Simulator
