#pragma once

#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include "Script/file_descriptor.h"

namespace Orvo::Tests {

/// The far end of a serial device that isn't one.
class PseudoTerminal {
public:
    /// Not every machine has them.
    [[nodiscard]] bool isThere() const { return isThere_; }
    [[nodiscard]] int end() const { return end_.get(); }
    [[nodiscard]] std::string path() const { return ::ptsname(end()); }
    void hangUp() { end_ = Script::FileDescriptor(); }

private:
    Script::FileDescriptor end_{::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)};
    bool isThere_ = ::grantpt(end_.get()) == 0 && ::unlockpt(end_.get()) == 0;
};

}  // namespace Orvo::Tests
