#include "Script/line_reader.h"

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <poll.h>
#include <unistd.h>

namespace Orvo::Script {
namespace {

constexpr std::size_t kChunk = 65536;

}  // namespace

LineReader::LineReader(int descriptor, std::string name, std::function<void()> beforeWaiting)
    : descriptor_(descriptor), name_(std::move(name)), beforeWaiting_(std::move(beforeWaiting)) {}

std::optional<std::string_view> LineReader::next() {
    std::size_t searched = start_;
    for (;;) {
        const std::size_t end = buffer_.find('\n', searched);
        if (end != std::string::npos) return take(end - start_);
        searched = buffer_.size() - start_;
        if (!fill()) break;
    }
    if (start_ == buffer_.size()) return std::nullopt;
    isCutOff_ = true;
    return take(buffer_.size() - start_);
}

std::string_view LineReader::take(std::size_t length) {
    const std::string_view line = std::string_view(buffer_).substr(start_, length);
    start_ = std::min(start_ + length + 1, buffer_.size());
    return line;
}

// A pipe that nobody has opened for writing yet would be at its end.
void LineReader::waitForWriter() const {
    pollfd file{descriptor_, POLLIN, 0};
    while (::poll(&file, 1, -1) < 0 && errno == EINTR) continue;
}

bool LineReader::fill() {
    beforeWaiting_();
    buffer_.erase(0, std::exchange(start_, 0));
    const std::size_t kept = buffer_.size();
    if (kept > kLongestLine) {
        throw std::runtime_error(name_ + ": A line is longer than " +
                                 std::to_string(kLongestLine >> 20U) + " MiB");
    }
    buffer_.resize(kept + kChunk);
    waitForWriter();
    ssize_t count = 0;
    do {
        count = ::read(descriptor_, buffer_.data() + kept, kChunk);
    } while (count < 0 && errno == EINTR);
    buffer_.resize(kept + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count < 0) throw std::system_error(errno, std::generic_category(), name_);
    return count > 0;
}

}  // namespace Orvo::Script
