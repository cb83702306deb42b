#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "Simulator/wander.h"

namespace Orvo::Simulator {

/// What the generator can play, by the panel's wave types from 0.
enum class Signal : std::uint8_t { tone100Hz, tone1kHz, tone10kHz, eiaj, lineIn };

constexpr int kSignalCount = 5;

/// What a function has for each signal, by signal: a sine takes long, and the signals are always
/// the same.
template <class Function>
auto ofEachSignal(const Function& function) {
    std::array<std::invoke_result_t<Function, Signal>, kSignalCount> all{};
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = function(static_cast<Signal>(i));
    return all;
}

/// By the panel's input codes.
enum class Input : std::uint8_t { positive = 1, negative = 2 };

/// Cycles per second of a signal's carrier.
double frequency(Signal signal);

/// How many cycles a scope shows of it.
double cyclesOnScope(Signal signal);

/// The carrier at a point that many cycles after the trigger, from -1 to 1. That of `eiaj` is a
/// burst: 8 cycles in full, then 32 at a tenth.
double carrier(Signal signal, double cycles);

/// The mean square of the carrier when it is amplified to a peak of `volts` and what exceeds
/// `lower` or `upper` is cut off. Volts squared.
double meanSquare(Signal signal, double volts, double lower, double upper);

/// Whatever plays at a channel's line input: music with a beat, in phrases with a rest between.
class Programme {
public:
    explicit Programme(std::uint32_t seed);

    /// From 0, in a rest, to 1.
    [[nodiscard]] double loudness(double seconds) const;

private:
    double offset_;
    double beatsPerSecond_;
    Wander dynamics_;
};

}  // namespace Orvo::Simulator
