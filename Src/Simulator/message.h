#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Orvo/values/integer_array.h"
#include "Orvo/values/types.h"
#include "Simulator/signal.h"

// What goes over the link.
namespace Orvo::Simulator {

// What the host asks for. Channels count from 1 to 4, pairs from 1 to 2, as the panel counts them.

struct SwitchPower {
    bool isOn = false;
};
/// Channel 0 is the whole amplifier.
struct SetMute {
    Integer channel = 0;
    bool isMuted = false;
};
/// In dB; the amplifier goes as far as it can.
struct SetVolume {
    Integer channel = 0;
    Integer decibels = 0;
};
/// Starts the generator of the channel's pair on one input of the channel.
struct StartGenerator {
    Integer channel = 0;
    Signal signal = Signal::lineIn;
    Input input = Input::positive;
};
/// In degrees Celsius; 0 ends the test.
struct SetVirtualTemperature {
    Integer pair = 0;
    Integer degrees = 0;
};
struct Information {
    std::string general;
    std::string amplifierSerial;
    std::string cardSerial;
};
struct SetInformation {
    Information information;
};
struct AskInternalData {};

using Request = std::variant<SwitchPower, SetMute, SetVolume, StartGenerator, SetVirtualTemperature,
                             SetInformation, AskInternalData>;

struct SentRequest {
    std::uint32_t number = 0;
    Request request;
};

// What the amplifier sends.

/// What a reading tells: a flag as 0 or 1, volts as a magnitude, dB, or degrees Celsius.
enum class Item : std::uint8_t {
    power,
    mains,
    secondPair,
    protection,  ///< by channel, 0 the whole amplifier
    mute,        ///< by channel, as all that follow
    signal,
    volume,
    clock,  ///< by pair, as all that follow
    ready,
    temperature,
    positivePower,
    negativePower,
    positiveAux,
    negativeAux,
};

struct Reading {
    Item item = Item::power;
    Integer index = 0;
    Integer value = 0;
};

/// All readings. What belongs to a pair that is missing is missing.
struct Status {
    std::vector<Reading> readings;
    std::optional<std::uint32_t> answered;  ///< the request that has just been obeyed
};

/// Samples from index 1 on, as the panel draws them.
struct ScopeFrame {
    Integer channel = 0;
    IntegerArray samples;
    double interval = 0;  ///< from one sample to the next, in seconds
};

/// Lines for the message log.
struct InternalData {
    std::vector<std::string> lines;
};

using Content = std::variant<Status, ScopeFrame, InternalData>;

struct Message {
    Content content;
    bool isIntact = true;  ///< its checksum is right
};

}  // namespace Orvo::Simulator
