#pragma once

#include <chrono>
#include <optional>
#include <string>

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
};

}  // namespace Orvo::Manager
