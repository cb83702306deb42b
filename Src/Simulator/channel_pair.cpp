#include "Simulator/channel_pair.h"

#include <algorithm>

namespace Orvo::Simulator {

using namespace Figures;

ChannelPair::ChannelPair(std::uint32_t seed) : channels_{Channel(seed), Channel(seed + 1)} {}

void ChannelPair::step(const Surroundings& amplifier) {
    seconds_ = amplifier.seconds;
    virtualLeft_ = std::max(Milliseconds(0), virtualLeft_ - kStep);
    if (virtualLeft_ == Milliseconds(0)) virtualDegrees_ = 0;
    double watts = 0;
    double amperes = 0;
    for (Channel& channel : channels_) {
        channel.step(surroundings());
        watts += channel.heatWatts();
        amperes += channel.amperes();
    }
    supply_.step(amplifier.mains, amplifier.isConnected, amperes, kFanAmperes * sink_.fan());
    sink_.step(watts, amplifier.air, supply_.hasAux());
    highest_ = std::max(highest_, sink_.degrees());
}

void ChannelPair::startGenerator(std::size_t channel, Signal signal, Input input) {
    channels_[channel].play(signal, input);
    channels_[1 - channel].play(Signal::lineIn, Input::positive);
}

void ChannelPair::setVirtualTemperature(Integer degrees) {
    virtualDegrees_ = std::max<Integer>(0, degrees);
    virtualLeft_ = kVirtualTemperatureLasts;
}

double ChannelPair::degrees() const {
    return virtualDegrees_ > 0 ? virtualDegrees_ : sink_.degrees();
}

Channel::Surroundings ChannelPair::surroundings() const {
    return {seconds_, supply_, sink_.degrees(), virtualDegrees_};
}

bool ChannelPair::hasSignal(std::size_t channel) const {
    return channels_[channel].hasSignal(surroundings());
}

IntegerArray ChannelPair::frame(std::size_t channel) const {
    return channels_[channel].frame(surroundings());
}

}  // namespace Orvo::Simulator
