#include "Simulator/amplifier.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <variant>

#include "Simulator/internal_data.h"

namespace Orvo::Simulator {
namespace {

using namespace Figures;

constexpr Integer kChannelsPerPair = 2;

// Seeds of the parts, far enough from each other that none gets two of them.
constexpr std::uint32_t kSecondPair = 100;
constexpr std::uint32_t kMains = 200;

constexpr std::array kShortCircuits{Fault::shortOnChannel1, Fault::shortOnChannel2,
                                    Fault::shortOnChannel3, Fault::shortOnChannel4};

constexpr Reading flag(Item item, Integer index, bool isSet) {
    return {item, index, static_cast<Integer>(isSet ? 1 : 0)};
}

Integer rounded(double value) { return static_cast<Integer>(std::lround(value)); }

std::size_t pairOf(Integer channel) { return static_cast<std::size_t>(channel - 1) / 2; }
std::size_t inPair(Integer channel) { return static_cast<std::size_t>(channel - 1) % 2; }

}  // namespace

Amplifier::Amplifier(std::uint32_t seed, PowerAtStart power)
    : mains_(seed + kMains),
      pairs_{ChannelPair(seed), ChannelPair(seed + kSecondPair)},
      isSwitchedOn_(power == PowerAtStart::on),
      information_(factoryInformation(seed)) {}

void Amplifier::step() {
    now_ += kStep;
    if (isRunning() && runningFor_ == Milliseconds(0)) ++starts_;
    runningFor_ = isRunning() ? runningFor_ + kStep : Milliseconds(0);
    if (isRunning()) operated_ += kStep;
    const auto air = has(Fault::overTemperature) ? HeatSink::Air::hot : HeatSink::Air::ambient;
    for (ChannelPair& pair : pairs_) {
        pair.step({seconds(), mainsShare(), runningFor_ > kRelayDelay, air});
    }
}

void Amplifier::set(Fault fault, bool isOn) {
    faults_.set(indexOf(fault), isOn);
    Integer number = 0;
    for (const Fault shortCircuit : kShortCircuits) {
        ++number;
        if (shortCircuit == fault) channel(number).setShorted(isOn);
    }
}

void Amplifier::obey(const Request& request) {
    std::visit([this](const auto& one) { carryOut(one); }, request);
}

void Amplifier::carryOut(const SwitchPower& request) {
    if (hasMains()) isSwitchedOn_ = request.isOn;
}

void Amplifier::carryOut(const SetMute& request) {
    for (Integer i = 1; i <= channelCount(); ++i) {
        if (request.channel == 0 || request.channel == i) channel(i).setMuted(request.isMuted);
    }
}

void Amplifier::carryOut(const SetVolume& request) {
    if (exists(request.channel)) channel(request.channel).setVolume(request.decibels);
}

void Amplifier::carryOut(const StartGenerator& request) {
    if (!exists(request.channel)) return;
    pairs_[pairOf(request.channel)].startGenerator(inPair(request.channel), request.signal,
                                                   request.input);
}

void Amplifier::carryOut(const SetVirtualTemperature& request) {
    if (request.pair < 1 || request.pair * kChannelsPerPair > channelCount()) return;
    pairs_[static_cast<std::size_t>(request.pair - 1)].setVirtualTemperature(request.degrees);
}

void Amplifier::carryOut(const SetInformation& request) { information_ = request.information; }

bool Amplifier::hasMains() const { return now_ > kMainsDelay && !has(Fault::mainsFailure); }

Integer Amplifier::channelCount() const { return has(Fault::secondPairMissing) ? 2 : 4; }

bool Amplifier::exists(Integer channel) const { return channel >= 1 && channel <= channelCount(); }

double Amplifier::seconds() const { return static_cast<double>(now_.count()) / 1000; }

double Amplifier::mainsShare() const {
    return hasMains() ? 1 + kMainsWander * mains_.at(seconds()) : 0;
}

Channel& Amplifier::channel(Integer number) {
    return pairs_[pairOf(number)].channel(inPair(number));
}

const Channel& Amplifier::channel(Integer number) const {
    return pairs_[pairOf(number)].channel(inPair(number));
}

std::vector<Reading> Amplifier::readings() const {
    std::vector<Reading> readings;
    addFlags(readings);
    addChannels(readings);
    addPairs(readings);
    return readings;
}

void Amplifier::addFlags(std::vector<Reading>& readings) const {
    readings.push_back(flag(Item::secondPair, 0, !has(Fault::secondPairMissing)));
    readings.push_back(flag(Item::mains, 0, hasMains()));
    readings.push_back(flag(Item::power, 0, isRunning()));
    bool isAnyTripped = false;
    for (Integer i = 1; i <= channelCount(); ++i) {
        isAnyTripped = isAnyTripped || channel(i).protection().isTripped();
    }
    readings.push_back(flag(Item::protection, 0, isAnyTripped));
}

void Amplifier::addChannels(std::vector<Reading>& readings) const {
    for (Integer i = 1; i <= channelCount(); ++i) {
        const Channel& one = channel(i);
        readings.push_back(flag(Item::protection, i, one.protection().isTripped()));
        readings.push_back(flag(Item::mute, i, one.isMuted()));
        readings.push_back(flag(Item::signal, i, pairs_[pairOf(i)].hasSignal(inPair(i))));
        readings.push_back({Item::volume, i, one.volume()});
    }
}

void Amplifier::addPairs(std::vector<Reading>& readings) const {
    for (Integer i = 1; i * kChannelsPerPair <= channelCount(); ++i) {
        const ChannelPair& pair = pairs_[static_cast<std::size_t>(i - 1)];
        const PowerSupply& supply = pair.supply();
        const Rails& rails = supply.rails();
        readings.push_back(flag(Item::clock, i, supply.hasAux()));
        readings.push_back(flag(Item::ready, i, supply.isReady()));
        readings.push_back({Item::temperature, i, rounded(pair.degrees())});
        readings.push_back({Item::positivePower, i, rounded(rails.positivePower.volts())});
        readings.push_back({Item::negativePower, i, rounded(rails.negativePower.volts())});
        readings.push_back({Item::positiveAux, i, rounded(rails.positiveAux.volts())});
        readings.push_back({Item::negativeAux, i, rounded(rails.negativeAux.volts())});
    }
}

std::vector<ScopeFrame> Amplifier::scopeFrames() const {
    std::vector<ScopeFrame> frames;
    for (Integer i = 1; i <= channelCount(); ++i) {
        const ChannelPair& pair = pairs_[pairOf(i)];
        const double interval = pair.channel(inPair(i)).sampleInterval();
        frames.push_back({i, pair.frame(inPair(i)), interval});
    }
    return frames;
}

std::vector<std::string> Amplifier::internalData() const {
    std::vector<std::string> lines = describe(information_);
    lines.push_back("Operating time: " + clockText(operated_));
    lines.push_back("Starts: " + std::to_string(starts_));
    for (Integer i = 1; i <= channelCount(); ++i) lines.push_back(describe(i, channel(i)));
    for (Integer i = 1; i * kChannelsPerPair <= channelCount(); ++i) {
        lines.push_back(describe(i, pairs_[static_cast<std::size_t>(i - 1)]));
    }
    return lines;
}

}  // namespace Orvo::Simulator
