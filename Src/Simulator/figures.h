#pragma once

#include <chrono>

#include "Orvo/values/types.h"

/// What the simulated amplifier is made of: a touring amplifier of four channels, about 1.4 kW
/// each into 4 ohms. Volts, ohms, watts, degrees Celsius, joules and seconds, unless a name says
/// otherwise.
namespace Orvo::Simulator {

using Milliseconds = std::chrono::milliseconds;

/// The amplifier's time goes in steps of this length, whatever the host's clock does.
constexpr Milliseconds kStep{10};
constexpr double kStepSeconds = 0.01;

namespace Figures {

// The rails of a pair. The two sides are never quite equal.
constexpr double kPositivePower = 118.7;
constexpr double kNegativePower = 117.9;
constexpr double kPositiveAux = 24.3;
constexpr double kNegativeAux = 23.8;
constexpr double kPowerRise = 95;         ///< volts per second, through the soft start
constexpr double kAuxRise = 60;           ///< volts per second
constexpr double kPowerBleed = 2.4;       ///< time constant of the discharge
constexpr double kAuxBleed = 0.7;         ///< the same
constexpr double kPowerResistance = 1.1;  ///< what the rails sag by, per ampere
constexpr double kAuxResistance = 0.8;
constexpr double kPowerCapacitance = 0.03;  ///< farad
constexpr double kAuxCapacitance = 0.05;    ///< farad
constexpr double kSagTime = 0.06;           ///< time constant of a sag
constexpr double kReadyShare = 0.85;        ///< of the nominal voltage: ready from here on
constexpr double kLostShare = 0.7;          ///< no longer ready below
constexpr double kMainsWander = 0.006;      ///< the share by which the mains wander, either way

constexpr Milliseconds kMainsDelay{100};  ///< until somebody plugs the amplifier in

// The relay that connects the power supply, after the amplifier was switched on.
constexpr Milliseconds kRelayDelay{250};

// The output stages.
constexpr double kFullDrive = 128;    ///< peak of a full-scale signal at 0 dB: more than there is
constexpr double kHeadroom = 3;       ///< between the rail and the highest output
constexpr double kLoad = 4;           ///< ohms at each output
constexpr double kEfficiency = 0.82;  ///< of a driven output stage
constexpr double kIdleWatts = 28;     ///< what a stage takes without a signal
constexpr double kFanAmperes = 0.9;   ///< what the fan takes of an auxiliary rail at full speed
constexpr double kHum = 0.5;          ///< what is left of the mains at the output
constexpr double kMainsFrequency = 50;

constexpr Integer kHighestVolume = 0;   ///< dB
constexpr Integer kLowestVolume = -30;  ///< dB
constexpr Integer kFirstVolume = -6;    ///< dB, as the amplifier was left

// Heat. A pair shares a heat sink and its fan.
constexpr double kAmbient = 24;
constexpr double kSinkCapacity = 600;  ///< joules per degree
constexpr double kConvection = 2.6;    ///< watts per degree with the fan at rest
constexpr double kFanCooling = 9;      ///< watts per degree more with the fan at full speed
constexpr double kFanStarts = 42;      ///< degrees
constexpr double kFanIsFull = 65;      ///< degrees
constexpr double kStageRise = 0.075;   ///< of a stage above its heat sink, degrees per watt
constexpr double kStageTime = 9;       ///< time constant of a stage's rise
constexpr double kHotAir = 120;        ///< what the fan blows at when over-temperature is asked for
constexpr double kHotAirCoupling = 40;  ///< watts per degree

// Protection of a channel.
constexpr double kTripDegrees = 90;
constexpr double kClearDegrees = 75;
constexpr Milliseconds kProtectionHold{2000};

// A test temperature that isn't repeated within this time ends by itself.
constexpr Milliseconds kVirtualTemperatureLasts{4000};

}  // namespace Figures

/// The serial link.
namespace LinkFigures {

constexpr Milliseconds kLatency{40};              ///< one way
constexpr Milliseconds kStartUp{200};             ///< until the amplifier at the other end talks
constexpr Milliseconds kStatusInterval{100};      ///< between two reports of all readings
constexpr Milliseconds kFrameInterval{50};        ///< between two frames of each scope
constexpr Milliseconds kSilenceIsLoss{600};       ///< after which the host takes the link for lost
constexpr Milliseconds kAnswerIsDue{500};         ///< after which the host waits no longer
constexpr Milliseconds kQuickTestPace{400};       ///< between two rows of the quick test
constexpr Milliseconds kLongestAdvance{600'000};  ///< at once; what is more is skipped

}  // namespace LinkFigures

}  // namespace Orvo::Simulator
