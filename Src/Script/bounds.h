#pragma once

#include <cstddef>

// How much is kept of what comes from outside.
namespace Orvo::Script {

/// Bytes of what a session is to do later, handlers and what is queued together; for a replay with
/// the message log, and for a device with all else that is kept of it. And of a recording that
/// waits for another file.
inline constexpr std::size_t kMostKept = std::size_t{1} << 24U;

/// Words of a line that comes from outside, far more than any command makes use of.
inline constexpr std::size_t kMostWords = 131072;

/// What a command or a text of so many characters takes: two bytes for each, and what goes with the
/// least.
constexpr std::size_t bytesToKeep(std::size_t characters) {
    constexpr std::size_t kLeastKept = 1024;
    return kLeastKept + sizeof(char16_t) * characters;
}

}  // namespace Orvo::Script
