#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Script {

/// Reads lines from a file descriptor.
class LineReader {
public:
    /// Far more than any command makes use of.
    static constexpr std::size_t kLongestLine = std::size_t{16} << 20U;  // bytes

    /// `beforeWaiting` is called before every read, which may wait for whoever writes.
    LineReader(int descriptor, std::string name, std::function<void()> beforeWaiting);

    /// The next line without its line break; none at the end. It is valid until the next call.
    /// Throws std::runtime_error, "NAME: REASON", also for a line that is too long.
    std::optional<std::string_view> next();
    /// Whether that line, the last, came without a line break.
    [[nodiscard]] bool isCutOff() const { return isCutOff_; }

private:
    bool fill();
    void waitForWriter() const;
    std::string_view take(std::size_t length);

    int descriptor_;
    std::string name_;
    std::function<void()> beforeWaiting_;
    std::string buffer_;
    std::size_t start_ = 0;
    bool isCutOff_ = false;
};

}  // namespace Orvo::Script
