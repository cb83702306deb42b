#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "Manager/Link/link_address.h"
#include "Script/file_descriptor.h"

namespace Orvo::Manager {

/// The near end of a link, open from its making to its end: a serial device, a pseudo-terminal, a
/// pipe in the file system, from which can only be read, or a local stream socket. No call waits.
class LinkPort {
public:
    /// Throws std::system_error when there is nothing to open, or nothing of these kinds.
    explicit LinkPort(const LinkAddress& address);
    ~LinkPort();
    LinkPort(const LinkPort&) = delete;
    LinkPort& operator=(const LinkPort&) = delete;

    /// How many bytes have been read; 0 when none are there now, none when the other side has gone.
    /// A pipe that nobody has written to yet has nothing.
    std::optional<std::size_t> read(std::span<char> bytes);
    /// How many bytes the other side takes now; none when it has gone. A pipe takes and drops all.
    std::optional<std::size_t> write(std::string_view bytes);

private:
    enum class Kind { terminal, pipe, socket };

    Kind kind_ = Kind::terminal;
    Script::FileDescriptor file_;
    bool hasHeard_ = false;
};

}  // namespace Orvo::Manager
