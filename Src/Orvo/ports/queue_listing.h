#pragma once

#include <optional>
#include <string_view>

#include "Orvo/ports/port_records.h"

namespace Orvo::Runtime {

/// The queues in a print server's answer, an IPP message; none when the server refuses, or when
/// this isn't such a message from its beginning to its end. Whatever the bytes are, the time and
/// the memory it takes are in proportion to their number.
std::optional<Ports> queuesIn(std::string_view answer);

}  // namespace Orvo::Runtime
