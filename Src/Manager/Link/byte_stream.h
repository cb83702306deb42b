#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "Manager/Link/link_address.h"

namespace Orvo::Manager {

/// The near end of a link, open from its making to its end. No call waits, nor does the end.
class ByteStream {
public:
    ByteStream() = default;
    virtual ~ByteStream() = default;
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;

    /// How many bytes have been read; 0 when none are there now, none when the other side has gone.
    virtual std::optional<std::size_t> read(std::span<char> bytes) = 0;
    /// How many bytes have been taken over; none when the other side has gone.
    virtual std::optional<std::size_t> write(std::string_view bytes) = 0;
};

/// Opens what is at an address, without waiting for anyone. Throws std::system_error when there is
/// nothing to open.
using OpenStream = std::function<std::unique_ptr<ByteStream>(const LinkAddress& address)>;

}  // namespace Orvo::Manager
