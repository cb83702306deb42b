#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "Orvo/ports/port_records.h"

namespace Orvo::Runtime {

/// The queues of a print server as ports, each with the back end of its device as the monitor and
/// its information text as the description; a queue whose device is on the network is marked as
/// attached to it.
///
/// `server` (UTF-8) is a host, host:port or [address]:port; "" is the one that this machine prints
/// with. None when it refuses, has not answered in full after `limit`, or when this library was
/// built without CUPS. Never throws for any of these. The connection to a server that has not
/// answered ends by itself later, on a thread of its own: keep the library loaded until then.
std::optional<Ports> printQueues(const std::string& server, std::chrono::milliseconds limit);

}  // namespace Orvo::Runtime
