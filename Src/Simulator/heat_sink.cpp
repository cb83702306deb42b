#include "Simulator/heat_sink.h"

#include <algorithm>

namespace Orvo::Simulator {

using namespace Figures;

void HeatSink::step(double watts, Air air, bool hasFan) {
    const double wanted = (degrees_ - kFanStarts) / (kFanIsFull - kFanStarts);
    fan_ = hasFan ? std::clamp(wanted, 0.0, 1.0) : 0;
    const double cooling = air == Air::hot
                               ? kHotAirCoupling * (degrees_ - kHotAir)
                               : (kConvection + kFanCooling * fan_) * (degrees_ - kAmbient);
    degrees_ += (watts - cooling) * kStepSeconds / kSinkCapacity;
}

}  // namespace Orvo::Simulator
