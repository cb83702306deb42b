#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

#include "Simulator/channel_pair.h"
#include "Simulator/fault.h"
#include "Simulator/figures.h"
#include "Simulator/message.h"

namespace Orvo::Simulator {

enum class PowerAtStart : std::uint8_t { off, on };

/// The amplifier: four channels in two pairs, on a clock of its own. The same seed, requests and
/// steps give the same life. It knows neither link nor panel.
class Amplifier {
public:
    /// It comes into the world without mains, its switch as it was left.
    explicit Amplifier(std::uint32_t seed, PowerAtStart power = PowerAtStart::on);

    /// Lets `kStep` pass.
    void step();

    /// Does what the host asks for, as far as there is mains and the channel or pair exists.
    void obey(const Request& request);

    /// Faults of the link are none of its own.
    void set(Fault fault, bool isOn);

    /// All readings, in the order in which they are best shown.
    [[nodiscard]] std::vector<Reading> readings() const;
    /// A frame for the scope of each channel that is there.
    [[nodiscard]] std::vector<ScopeFrame> scopeFrames() const;
    /// Its internal data, as lines of text.
    [[nodiscard]] std::vector<std::string> internalData() const;

private:
    void carryOut(const SwitchPower& request);
    void carryOut(const SetMute& request);
    void carryOut(const SetVolume& request);
    void carryOut(const StartGenerator& request);
    void carryOut(const SetVirtualTemperature& request);
    void carryOut(const SetInformation& request);
    void carryOut(const AskInternalData& /*request*/) {}

    [[nodiscard]] bool has(Fault fault) const { return faults_.test(indexOf(fault)); }
    [[nodiscard]] bool hasMains() const;
    [[nodiscard]] bool isRunning() const { return isSwitchedOn_ && hasMains(); }
    [[nodiscard]] Integer channelCount() const;
    [[nodiscard]] bool exists(Integer channel) const;
    [[nodiscard]] double seconds() const;
    [[nodiscard]] double mainsShare() const;
    Channel& channel(Integer number);
    [[nodiscard]] const Channel& channel(Integer number) const;

    void addFlags(std::vector<Reading>& readings) const;
    void addChannels(std::vector<Reading>& readings) const;
    void addPairs(std::vector<Reading>& readings) const;

    Wander mains_;
    std::array<ChannelPair, 2> pairs_;
    std::bitset<kFaultCount> faults_;
    bool isSwitchedOn_;
    Milliseconds now_{0};
    Milliseconds runningFor_{0};
    Milliseconds operated_{0};
    int starts_ = 0;
    Information information_;
};

}  // namespace Orvo::Simulator
