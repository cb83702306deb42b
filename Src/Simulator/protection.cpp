#include "Simulator/protection.h"

namespace Orvo::Simulator {

using namespace Figures;

void Protection::step(double degrees, bool isShorted) {
    const bool hasCause = isShorted || degrees > (isTripped_ ? kClearDegrees : kTripDegrees);
    withoutCause_ = hasCause ? Milliseconds(0) : withoutCause_ + kStep;
    if (hasCause && !isTripped_) ++trips_;
    isTripped_ = hasCause || (isTripped_ && withoutCause_ < kProtectionHold);
}

}  // namespace Orvo::Simulator
