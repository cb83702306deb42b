#pragma once

#include <cstdint>

#include "Orvo/values/integer_array.h"
#include "Simulator/message.h"
#include "Simulator/power_supply.h"
#include "Simulator/protection.h"
#include "Simulator/signal.h"

namespace Orvo::Simulator {

/// One output channel: what plays at its input, its volume and mute, its output stage with its
/// heat and its protection.
class Channel {
public:
    explicit Channel(std::uint32_t seed) : programme_(seed) {}

    /// What a channel sees of the pair that it belongs to.
    struct Surroundings {
        double seconds = 0;  ///< of the amplifier's time
        const PowerSupply& supply;
        double sinkDegrees = 0;
        /// The test temperature that stands for the stage's own, or 0.
        double virtualDegrees = 0;
    };

    void step(const Surroundings& pair);

    void setVolume(Integer decibels);
    void setMuted(bool isMuted) { isMuted_ = isMuted; }
    void setShorted(bool isShorted) { isShorted_ = isShorted; }
    void play(Signal signal, Input input);

    [[nodiscard]] Integer volume() const { return volume_; }
    [[nodiscard]] bool isMuted() const { return isMuted_; }
    [[nodiscard]] const Protection& protection() const { return protection_; }
    /// Whether anything plays at the input.
    [[nodiscard]] bool hasSignal(const Surroundings& pair) const;
    /// What the stage turns into heat, and what it draws of each power rail on average.
    [[nodiscard]] double heatWatts() const { return heatWatts_; }
    [[nodiscard]] double amperes() const { return amperes_; }
    [[nodiscard]] double deliveredWatts() const { return deliveredWatts_; }

    /// The output as a scope shows it.
    [[nodiscard]] IntegerArray frame(const Surroundings& pair) const;
    /// From one of its samples to the next, in seconds.
    [[nodiscard]] double sampleInterval() const;

private:
    [[nodiscard]] bool isOpen(const Surroundings& pair) const;
    /// The peak that is asked of the output, negative at the negative input; 0 while it is closed.
    [[nodiscard]] double peak(const Surroundings& pair) const;
    void deliver(const Surroundings& pair);

    Programme programme_;
    Signal signal_ = Signal::lineIn;
    Input input_ = Input::positive;
    Integer volume_ = Figures::kFirstVolume;
    bool isMuted_ = false;
    bool isShorted_ = false;
    Protection protection_;
    double rise_ = 0;
    double heatWatts_ = 0;
    double amperes_ = 0;
    double deliveredWatts_ = 0;
};

}  // namespace Orvo::Simulator
