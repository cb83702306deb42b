#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Script {

/// Reads lines of any length from a file descriptor.
class LineReader {
public:
    /// `beforeWaiting` is called before every read, which may wait for whoever writes.
    LineReader(int descriptor, std::function<void()> beforeWaiting);

    /// The next line without its line break; none at the end. It is valid until the next call.
    /// Throws std::system_error.
    std::optional<std::string_view> next();

private:
    bool fill();
    std::string_view take(std::size_t length);

    int descriptor_;
    std::function<void()> beforeWaiting_;
    std::string buffer_;
    std::size_t start_ = 0;
};

}  // namespace Orvo::Script
