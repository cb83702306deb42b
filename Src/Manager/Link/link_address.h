#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Manager {

enum class Parity : std::uint8_t { none, even, odd, mark, space };

/// How the line of a serial device is set: "9600", or "9600,7E2" with the number of data bits, the
/// parity (N, E, O, M or S) and the number of stop bits.
struct LineSettings {
    static constexpr unsigned kSlowest = 50;
    static constexpr unsigned kFastest = 4'000'000;

    unsigned speed = 9600;  ///< in bits a second
    unsigned dataBits = 8;
    Parity parity = Parity::none;
    unsigned stopBits = 1;

    /// None when it isn't that, or out of range.
    static std::optional<LineSettings> read(std::string_view text);
    /// As `read` takes it, without a format that is 8N1.
    [[nodiscard]] std::string text() const;
    /// "8N1".
    [[nodiscard]] std::string format() const;
};

/// Where the other end of a link is: "PATH", or "PATH@9600" and the like for a serial device.
struct LinkAddress {
    std::string path;
    /// Without them the device's own speed is left as it is.
    std::optional<LineSettings> line{};

    /// What follows the last "@" is meant for the line when it begins with a number. None when
    /// there is no path, or when no line can be set so.
    static std::optional<LinkAddress> read(const std::string& text);
    /// As `read` takes it.
    [[nodiscard]] std::string text() const;
};

}  // namespace Orvo::Manager
