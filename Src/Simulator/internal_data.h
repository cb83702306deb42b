#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulator/channel_pair.h"
#include "Simulator/message.h"

// The amplifier's internal data as lines of text.
namespace Orvo::Simulator {

/// What the factory wrote into an amplifier.
Information factoryInformation(std::uint32_t seed);

/// Hours, minutes and seconds: 00:12:33.
std::string clockText(Milliseconds time);

std::vector<std::string> describe(const Information& information);
std::string describe(int number, const Channel& channel);
std::string describe(int number, const ChannelPair& pair);

}  // namespace Orvo::Simulator
