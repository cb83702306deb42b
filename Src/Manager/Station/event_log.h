#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>

namespace Orvo::Manager {

/// The last lines of what passed between the panel and its host (UTF-8). It never grows beyond its
/// bounds: the oldest lines go, and a line that is too long is cut and ends with "…".
class EventLog {
public:
    static constexpr std::size_t kMostLines = 2000;
    static constexpr std::size_t kLongestLine = 1000;  // bytes

    void add(std::string line);
    void clear();

    [[nodiscard]] const std::deque<std::string>& lines() const { return lines_; }
    /// How many lines have ever been added; a view compares `clears` first, then this.
    [[nodiscard]] std::uint64_t added() const { return added_; }
    [[nodiscard]] std::uint64_t clears() const { return clears_; }

private:
    std::deque<std::string> lines_;
    std::uint64_t added_ = 0;
    std::uint64_t clears_ = 0;
};

}  // namespace Orvo::Manager
