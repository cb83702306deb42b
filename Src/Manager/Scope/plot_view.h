#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <QString>

#include "Manager/Station/traces.h"

namespace Orvo::Manager {

enum class Arrangement : std::uint8_t { overlaid, stacked };

/// Two for the time, as shares of what the width shows, and two for volts.
struct Cursors {
    bool hasTime = false;
    bool hasVolts = false;
    std::array<double, 2> shares{0.2, 0.6};
    std::array<double, 2> volts{60, -60};
    std::size_t active = 0;  ///< that the keys move, of both pairs
};

/// What a plot shows.
struct PlotView {
    std::vector<ScopeTrace> traces{};  ///< of the channels that are on, in order
    Arrangement arrangement = Arrangement::overlaid;
    double voltsPerDivision = 30;  ///< where traces lie over each other
    Integer source = 1;            ///< the channel that the time axis and the cursors read
    Cursors cursors{};
    bool isOld = false;  ///< drained of colour
    QString note{};      ///< what somebody has to know who trusts it: "Held since 15:09:26"

    /// The source's, or none while that is off.
    [[nodiscard]] const ScopeTrace* sourceTrace() const;
    [[nodiscard]] std::size_t lanes() const;
    /// The one that a trace is drawn in.
    [[nodiscard]] std::size_t laneOf(Integer channel) const;
};

}  // namespace Orvo::Manager
