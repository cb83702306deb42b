#include "Simulator/channel.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Simulator/scope_frame.h"

namespace Orvo::Simulator {
namespace {

using namespace Figures;

// What is seen as a signal, and how loud the line is beside the generator.
constexpr double kSignalThreshold = 0.02;
constexpr double kLineLevel = 0.7;

struct Limits {
    double lower;
    double upper;
};

Limits limitsOf(const PowerSupply& supply) {
    return {-std::max(0.0, supply.rails().negativePower.volts() - kHeadroom),
            std::max(0.0, supply.rails().positivePower.volts() - kHeadroom)};
}

double hum(double seconds) {
    return kHum * std::sin(2 * std::numbers::pi * 2 * kMainsFrequency * seconds);
}

}  // namespace

void Channel::setVolume(Integer decibels) {
    volume_ = std::clamp(decibels, kLowestVolume, kHighestVolume);
}

void Channel::play(Signal signal, Input input) {
    signal_ = signal;
    input_ = input;
}

bool Channel::hasSignal(const Surroundings& pair) const {
    const double level = signal_ == Signal::lineIn ? programme_.loudness(pair.seconds) : 1;
    return pair.supply.hasAux() && level > kSignalThreshold;
}

void Channel::step(const Surroundings& pair) {
    deliver(pair);
    rise_ += (kStageRise * heatWatts_ - rise_) * kStepSeconds / kStageTime;
    const bool isTested = pair.virtualDegrees > 0;
    protection_.step(isTested ? pair.virtualDegrees : pair.sinkDegrees + rise_,
                     isShorted_ && pair.supply.isReady());
}

void Channel::deliver(const Surroundings& pair) {
    const auto [lower, upper] = limitsOf(pair.supply);
    deliveredWatts_ = meanSquare(signal_, peak(pair), lower, upper) / kLoad;
    const double drawn = deliveredWatts_ / kEfficiency + (pair.supply.isReady() ? kIdleWatts : 0);
    heatWatts_ = drawn - deliveredWatts_;
    const double volts =
        pair.supply.rails().positivePower.volts() + pair.supply.rails().negativePower.volts();
    amperes_ = volts > 0 ? drawn / volts : 0;
}

bool Channel::isOpen(const Surroundings& pair) const {
    return pair.supply.isReady() && !isMuted_ && !protection_.isTripped();
}

double Channel::peak(const Surroundings& pair) const {
    if (!isOpen(pair)) return 0;
    const double level =
        signal_ == Signal::lineIn ? kLineLevel * programme_.loudness(pair.seconds) : 1;
    const double polarity = input_ == Input::positive ? 1 : -1;
    return polarity * kFullDrive * level * std::pow(10, volume_ / 20.0);
}

IntegerArray Channel::frame(const Surroundings& pair) const {
    const auto [lower, upper] = limitsOf(pair.supply);
    const double peakVolts = peak(pair);
    const double cycles = cyclesOnScope(signal_);
    const double length = cycles / frequency(signal_);
    return scopeFrame([&, lower = lower, upper = upper](double place) {
        const double ripple = isOpen(pair) ? hum(pair.seconds + length * place) : 0;
        const double driven = peakVolts * carrier(signal_, cycles * place) + ripple;
        return std::clamp(driven, lower, upper);
    });
}

}  // namespace Orvo::Simulator
