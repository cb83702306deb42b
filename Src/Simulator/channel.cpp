#include "Simulator/channel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "Simulator/scope_frame.h"

namespace Orvo::Simulator {
namespace {

using namespace Figures;

// What is seen as a signal, and how loud the line is beside the generator.
constexpr double kSignalThreshold = 0.02;
constexpr double kLineLevel = 0.7;

double secondsOnScope(Signal signal) { return cyclesOnScope(signal) / frequency(signal); }

struct Limits {
    double lower;
    double upper;
};

Limits limitsOf(const PowerSupply& supply) {
    return {-std::max(0.0, supply.rails().negativePower.volts() - kHeadroom),
            std::max(0.0, supply.rails().positivePower.volts() - kHeadroom)};
}

// The hum goes through whole cycles in each of the amplifier's steps: it stands still on a scope.
static_assert(2 * kMainsFrequency * kStepSeconds == 1);
double hum(double seconds) {
    return kHum * std::sin(2 * std::numbers::pi * 2 * kMainsFrequency * seconds);
}

struct Lines {
    ScopeLine carrier;
    ScopeLine hum;
};

Lines drawLines(Signal signal) {
    const double cycles = cyclesOnScope(signal);
    const double seconds = secondsOnScope(signal);
    return {scopeLine([&](double place) { return carrier(signal, cycles * place); }),
            scopeLine([&](double place) { return hum(seconds * place); })};
}

// What a scope shows of a signal with a peak of 1 V, and of the hum beside it.
const Lines& linesOf(Signal signal) {
    static const auto kLines = ofEachSignal(drawLines);
    return kLines[static_cast<std::size_t>(signal)];
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
    const double ripple = isOpen(pair) ? 1 : 0;
    const Lines& lines = linesOf(signal_);
    ScopeLine volts{};
    for (std::size_t i = 0; i < volts.size(); ++i) {
        const double driven = peakVolts * lines.carrier[i] + ripple * lines.hum[i];
        volts[i] = std::clamp(driven, lower, upper);
    }
    return scopeFrame(volts);
}

double Channel::sampleInterval() const { return secondsOnScope(signal_) / (kSamplesPerFrame - 1); }

}  // namespace Orvo::Simulator
