#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Manager {

/// Makes lines of bytes that come in pieces. Of a line that is too long nothing is kept.
class LineSplitter {
public:
    // The longest command of use is a trace of as many samples as can be drawn, each as it may be
    // written at most, within as many commands as can be nested.
    static constexpr std::size_t kMostSamples = 32768;
    static constexpr std::size_t kLongestSample = sizeof "-0x8000";  // with the blank
    static constexpr std::size_t kCommandsAround = 4096;
    static constexpr std::size_t kLongestLine =
        kMostSamples * kLongestSample + kCommandsAround;  // bytes

    struct Line {
        std::string text;  ///< without its line break
        bool isTooLong = false;
    };

    LineSplitter() = default;
    explicit LineSplitter(std::size_t longest) : longest_(longest) {}

    /// To be called when there is no next line any more, so that not more than a piece and the
    /// beginning of a line are ever kept.
    void add(std::string_view bytes) { buffer_ += bytes; }
    std::optional<Line> next();
    /// Of what has not become a line yet, in bytes.
    [[nodiscard]] std::size_t size() const { return buffer_.size(); }

private:
    std::size_t longest_ = kLongestLine;  // bytes
    std::string buffer_;
    std::size_t searched_ = 0;  // so many bytes of it have no line break
    bool isTooLong_ = false;
};

}  // namespace Orvo::Manager
