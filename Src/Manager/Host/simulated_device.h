#pragma once

#include "Manager/Host/simulated_host.h"
#include "Manager/Station/device.h"

namespace Orvo::Manager {

/// The built-in amplifier.
class SimulatedDevice final : public Device {
public:
    SimulatedDevice(MarvaneAssistant& panel, std::uint32_t seed, Simulator::PowerAtStart power)
        : host_(panel, seed, power), seed_(seed) {}

    [[nodiscard]] std::string name() const override {
        return "Simulated amplifier (seed " + std::to_string(seed_) + ")";
    }
    void advance(std::chrono::milliseconds elapsed) override { host_.advance(elapsed); }
    /// It speaks from the beginning.
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return host_.sinceLastWord();
    }

    SimulatedHost& host() { return host_; }

private:
    SimulatedHost host_;
    std::uint32_t seed_;
};

}  // namespace Orvo::Manager
