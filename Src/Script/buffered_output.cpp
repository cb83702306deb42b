#include "Script/buffered_output.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <system_error>

namespace Orvo::Script {
namespace {

constexpr std::size_t kMostBuffered = 65536;

}  // namespace

void BufferedOutput::line(std::string_view text) {
    buffer_.append(text) += '\n';
    if (buffer_.size() >= kMostBuffered) flush();
}

void BufferedOutput::flush() {
    const bool isWritten = std::fwrite(buffer_.data(), 1, buffer_.size(), stdout) == buffer_.size();
    buffer_.clear();
    if (!isWritten || std::fflush(stdout) != 0) {
        throw std::system_error(errno, std::generic_category(), "standard output");
    }
}

}  // namespace Orvo::Script
