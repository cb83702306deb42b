#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Manager {

/// Makes lines of bytes that come in pieces. Of a line that is too long nothing is kept.
class LineSplitter {
public:
    static constexpr std::size_t kLongestLine = 65536;  // bytes

    struct Line {
        std::string text;  ///< without its line break
        bool isTooLong = false;
    };

    /// To be called when there is no next line any more, so that not more than a piece and the
    /// beginning of a line are ever kept.
    void add(std::string_view bytes) { buffer_ += bytes; }
    std::optional<Line> next();

private:
    std::string buffer_;
    bool isTooLong_ = false;
};

}  // namespace Orvo::Manager
