#include "Simulator/signal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace Orvo::Simulator {
namespace {

struct Character {
    double frequency;
    double cyclesOnScope;
};

// By signal. The burst shows with as much of its quiet part; the line's carrier is its bass.
constexpr std::array<Character, kSignalCount> kCharacters{{
    {100, 2.5},
    {1000, 2.5},
    {10000, 2.5},
    {1000, 16},
    {110, 3},
}};

constexpr double kBurstCycles = 8;
constexpr double kBurstPeriod = 40;
constexpr double kBetweenBursts = 0.1;

constexpr double kPhraseSeconds = 14;
constexpr double kRestSeconds = 1.6;
constexpr double kFadeSeconds = 0.4;

double sine(double cycles) { return std::sin(2 * std::numbers::pi * cycles); }

// A bass note and three of its overtones; at most 1.
double chord(double cycles) {
    return 0.62 * sine(cycles) + 0.27 * sine(2 * cycles + 0.11) + 0.14 * sine(5 * cycles + 0.3) +
           0.08 * sine(9 * cycles + 0.7);
}

double burst(double cycles) {
    const double inPeriod = cycles - kBurstPeriod * std::floor(cycles / kBurstPeriod);
    return sine(cycles) * (inPeriod < kBurstCycles ? 1 : kBetweenBursts);
}

using Cycle = std::array<double, 24>;

Cycle firstCycle(Signal signal) {
    Cycle cycle{};
    for (std::size_t i = 0; i < cycle.size(); ++i) {
        cycle[i] = carrier(signal, (static_cast<double>(i) + 0.5) / cycle.size());
    }
    return cycle;
}

double meanSquareOfOneCycle(Signal signal, double volts, double lower, double upper) {
    static const auto kCycles = ofEachSignal(firstCycle);
    double sum = 0;
    for (const double point : kCycles[static_cast<std::size_t>(signal)]) {
        const double clipped = std::clamp(volts * point, lower, upper);
        sum += clipped * clipped;
    }
    return sum / Cycle().size();
}

}  // namespace

double frequency(Signal signal) { return kCharacters[static_cast<std::size_t>(signal)].frequency; }

double cyclesOnScope(Signal signal) {
    return kCharacters[static_cast<std::size_t>(signal)].cyclesOnScope;
}

double carrier(Signal signal, double cycles) {
    if (signal == Signal::lineIn) return chord(cycles);
    return signal == Signal::eiaj ? burst(cycles) : sine(cycles);
}

double meanSquare(Signal signal, double volts, double lower, double upper) {
    const double loud = meanSquareOfOneCycle(signal, volts, lower, upper);
    if (signal != Signal::eiaj) return loud;
    const double quiet = meanSquareOfOneCycle(signal, volts * kBetweenBursts, lower, upper);
    constexpr double kDuty = kBurstCycles / kBurstPeriod;
    return kDuty * loud + (1 - kDuty) * quiet;
}

Programme::Programme(std::uint32_t seed)
    : offset_(kPhraseSeconds * Wander::share(seed, 11)),
      beatsPerSecond_(1.4 + 0.8 * Wander::share(seed, 12)),
      dynamics_(seed + 13) {}

double Programme::loudness(double seconds) const {
    const double played = std::fmod(seconds + offset_, kPhraseSeconds);
    const double untilRest = kPhraseSeconds - kRestSeconds - played;
    const double phrase = std::clamp(std::min(played, untilRest) / kFadeSeconds, 0.0, 1.0);
    const double sinceBeat = std::fmod(played * beatsPerSecond_, 1.0);
    const double beat = 0.6 + 0.4 * std::exp(-3 * sinceBeat);
    return phrase * beat * (0.8 + 0.2 * dynamics_.at(seconds));
}

}  // namespace Orvo::Simulator
