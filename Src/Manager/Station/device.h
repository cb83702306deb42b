#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "Orvo/values/types.h"

namespace Orvo::Manager {

/// What is connected to the panel. It calls the panel's members and hears its events, from the
/// time it is made to its end, also when it asks for a fresh panel.
class Device {
public:
    virtual ~Device() = default;
    /// How a person knows it, in UTF-8: "Simulated amplifier".
    [[nodiscard]] virtual std::string name() const = 0;
    /// Lets time pass.
    virtual void advance(std::chrono::milliseconds elapsed) = 0;
    /// The time since the last word from the amplifier; none before the first, and from a loss of
    /// its link on to the next.
    [[nodiscard]] virtual std::optional<std::chrono::milliseconds> sinceLastWord() const = 0;
    /// From one sample of a channel's trace to the next, in seconds; none when it isn't known.
    [[nodiscard]] virtual std::optional<double> sampleInterval(Integer /*channel*/) const {
        return std::nullopt;
    }
};

}  // namespace Orvo::Manager
