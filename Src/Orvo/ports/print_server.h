#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "Orvo/ports/port_records.h"

namespace Orvo::Runtime {

/// What is read of a server's answer at most, in bytes.
inline constexpr std::size_t kLongestQueueAnswer = 1 << 20;

/// The queues of a print server as ports, each with the back end of its device as the monitor and
/// its information text as the description; a queue whose device is on the network is marked as
/// attached to it.
///
/// `server` (UTF-8) is a host, host:port or [address]:port; "" is the one that this machine prints
/// with. None when it refuses, when its answer is none or is longer than `kLongestQueueAnswer`,
/// when it has not answered in full after `limit`, or without CUPS, here or when this library was
/// built. Never throws for any of these.
///
/// Opens no event loop. The connection ends at the limit. What comes before it, the look-up of the
/// host's name and the agreement on encryption, may go on for as long as the machine lets these
/// take, on a thread of its own: keep the library loaded until then.
std::optional<Ports> printQueues(const std::string& server, std::chrono::milliseconds limit);

}  // namespace Orvo::Runtime
