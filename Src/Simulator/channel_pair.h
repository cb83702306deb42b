#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "Simulator/channel.h"
#include "Simulator/heat_sink.h"
#include "Simulator/power_supply.h"

namespace Orvo::Simulator {

/// Two channels with a supply, a heat sink and a wave generator of their own.
class ChannelPair {
public:
    static constexpr std::size_t kChannels = 2;

    explicit ChannelPair(std::uint32_t seed);

    /// What a pair gets from the amplifier.
    struct Surroundings {
        double seconds = 0;  ///< of the amplifier's time
        double mains = 0;    ///< share of the nominal voltage
        bool isConnected = false;
        HeatSink::Air air = HeatSink::Air::ambient;
    };

    void step(const Surroundings& amplifier);

    /// Routes the generator to one of the channels; the other one hears its line input.
    void startGenerator(std::size_t channel, Signal signal, Input input);
    /// 0 ends the test; it also ends unless this is repeated every few seconds.
    void setVirtualTemperature(Integer degrees);

    /// By place in the pair, from 0.
    [[nodiscard]] Channel& channel(std::size_t place) { return channels_[place]; }
    [[nodiscard]] const Channel& channel(std::size_t place) const { return channels_[place]; }
    [[nodiscard]] const PowerSupply& supply() const { return supply_; }
    [[nodiscard]] const HeatSink& sink() const { return sink_; }
    /// The virtual temperature while there is one.
    [[nodiscard]] double degrees() const;
    [[nodiscard]] double highestDegrees() const { return highest_; }
    [[nodiscard]] bool hasSignal(std::size_t channel) const;
    [[nodiscard]] IntegerArray frame(std::size_t channel) const;

private:
    [[nodiscard]] Channel::Surroundings surroundings() const;

    std::array<Channel, kChannels> channels_;
    PowerSupply supply_;
    HeatSink sink_;
    double seconds_ = 0;
    double virtualDegrees_ = 0;
    Milliseconds virtualLeft_{0};
    double highest_ = Figures::kAmbient;
};

}  // namespace Orvo::Simulator
