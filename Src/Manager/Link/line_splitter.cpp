#include "Manager/Link/line_splitter.h"

#include <utility>

namespace Orvo::Manager {

std::optional<LineSplitter::Line> LineSplitter::next() {
    const std::size_t end = buffer_.find('\n', searched_);
    if (end == std::string::npos) {
        isTooLong_ = isTooLong_ || buffer_.size() > longest_;
        if (isTooLong_) buffer_.clear();
        searched_ = buffer_.size();
        return std::nullopt;
    }
    Line line{buffer_.substr(0, end), std::exchange(isTooLong_, false) || end > longest_};
    buffer_.erase(0, end + 1);
    searched_ = 0;
    if (line.isTooLong) line.text.clear();
    return line;
}

}  // namespace Orvo::Manager
