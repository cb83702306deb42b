#pragma once

#include <optional>
#include <string>

namespace Orvo::Manager {

/// Where the other end of a link is: "PATH", or "PATH@SPEED" for a serial device.
struct LinkAddress {
    std::string path;
    /// In bits a second; without one the device's own is left as it is.
    std::optional<unsigned> speed{};

    /// What follows the last "@" is a speed when it is a number. None when there is no path, or
    /// when no serial device has that speed.
    static std::optional<LinkAddress> read(const std::string& text);
    /// As `read` takes it.
    [[nodiscard]] std::string text() const;
};

/// The constant that the terminal interface has for a speed, if any.
std::optional<unsigned> speedConstant(unsigned bitsPerSecond);

}  // namespace Orvo::Manager
