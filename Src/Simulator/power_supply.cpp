#include "Simulator/power_supply.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Simulator {
namespace {

using namespace Figures;

constexpr Rail::Make power(double nominal) {
    return {nominal, kPowerRise, kPowerBleed, kPowerResistance, kPowerCapacitance};
}

constexpr Rail::Make aux(double nominal) {
    return {nominal, kAuxRise, kAuxBleed, kAuxResistance, kAuxCapacitance};
}

}  // namespace

void Rail::step(double source, double amperes) {
    if (source > 0) {
        charge(make_.nominal * source - make_.resistance * amperes);
    } else {
        discharge(amperes);
    }
}

void Rail::charge(double target) {
    if (volts_ < target) {
        volts_ = std::min(target, volts_ + make_.rise * kStepSeconds);
    } else {
        volts_ += (target - volts_) * kStepSeconds / kSagTime;
    }
}

void Rail::discharge(double amperes) {
    const double drawn = amperes * kStepSeconds / make_.capacitance;
    volts_ = std::max(0.0, volts_ * std::exp(-kStepSeconds / make_.bleed) - drawn);
}

Rails PowerSupply::makeRails() {
    return {Rail(power(kPositivePower)), Rail(power(kNegativePower)), Rail(aux(kPositiveAux)),
            Rail(aux(kNegativeAux))};
}

void PowerSupply::step(double mains, bool isConnected, double powerAmperes, double auxAmperes) {
    const double powerSource = isConnected ? mains : 0;
    rails_.positivePower.step(powerSource, powerAmperes);
    rails_.negativePower.step(powerSource, powerAmperes);
    rails_.positiveAux.step(mains, auxAmperes);
    rails_.negativeAux.step(mains, auxAmperes);
    const double lowest = std::min(rails_.positivePower.share(), rails_.negativePower.share());
    isReady_ = hasAux() && lowest > (isReady_ ? kLostShare : kReadyShare);
}

bool PowerSupply::hasAux() const {
    return std::min(rails_.positiveAux.share(), rails_.negativeAux.share()) > kReadyShare;
}

}  // namespace Orvo::Simulator
