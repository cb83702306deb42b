#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>

namespace Orvo::Simulator {

/// A value that drifts slowly between -1 and 1: three sines of periods that have little in common,
/// with phases from a seed.
class Wander {
public:
    explicit Wander(std::uint32_t seed) : seed_(seed) {}

    [[nodiscard]] double at(double seconds) const {
        return (sine(seconds, 31.0, 1) + sine(seconds, 11.3, 2) + sine(seconds, 4.7, 3)) / 3;
    }

    /// A number from 0 to 1 that a seed and a salt decide (the finaliser of MurmurHash3).
    static double share(std::uint32_t seed, std::uint32_t salt) {
        std::uint32_t bits = seed * 0x9E3779B9U + salt;
        bits = (bits ^ (bits >> 16U)) * 0x85EBCA6BU;
        bits = (bits ^ (bits >> 13U)) * 0xC2B2AE35U;
        return static_cast<double>(bits ^ (bits >> 16U)) / 4294967296.0;
    }

private:
    [[nodiscard]] double sine(double seconds, double period, std::uint32_t salt) const {
        return std::sin(2 * std::numbers::pi * (seconds / period + share(seed_, salt)));
    }

    std::uint32_t seed_;
};

}  // namespace Orvo::Simulator
