#pragma once

#include "Simulator/figures.h"

namespace Orvo::Simulator {

/// A channel's protection: it trips on heat or a short circuit, and clears when the stage has
/// cooled well below and the cause has been gone for a while.
class Protection {
public:
    void step(double degrees, bool isShorted);

    [[nodiscard]] bool isTripped() const { return isTripped_; }
    [[nodiscard]] int trips() const { return trips_; }

private:
    bool isTripped_ = false;
    Milliseconds withoutCause_{0};
    int trips_ = 0;
};

}  // namespace Orvo::Simulator
