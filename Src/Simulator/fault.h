#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Orvo::Simulator {

/// What can be made to fail; it stays failed until it is told to work again.
enum class Fault : std::uint8_t {
    linkLoss,
    garbledReplies,  ///< the link is up, but nothing on it can be understood
    mainsFailure,
    secondPairMissing,
    overTemperature,  ///< the fans blow hot air
    shortOnChannel1,
    shortOnChannel2,
    shortOnChannel3,
    shortOnChannel4,
};

constexpr std::size_t kFaultCount = 9;

constexpr std::size_t indexOf(Fault fault) { return static_cast<std::size_t>(fault); }

/// For a menu, in the order of the faults.
struct FaultRow {
    Fault fault;
    std::string_view description;  ///< as a menu shows it
};

constexpr std::array<FaultRow, kFaultCount> kFaults{{
    {Fault::linkLoss, "Link lost"},
    {Fault::garbledReplies, "Replies garbled"},
    {Fault::mainsFailure, "Mains failure"},
    {Fault::secondPairMissing, "Second pair missing"},
    {Fault::overTemperature, "Over-temperature"},
    {Fault::shortOnChannel1, "Short circuit on channel 1"},
    {Fault::shortOnChannel2, "Short circuit on channel 2"},
    {Fault::shortOnChannel3, "Short circuit on channel 3"},
    {Fault::shortOnChannel4, "Short circuit on channel 4"},
}};

}  // namespace Orvo::Simulator
