#pragma once

#include <string>
#include <string_view>

namespace Orvo::Script {

/// Standard output in large pieces. Throws std::system_error when it can't be written.
class BufferedOutput {
public:
    void line(std::string_view text);
    void flush();

private:
    std::string buffer_;
};

}  // namespace Orvo::Script
