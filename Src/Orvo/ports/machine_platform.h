#pragma once

#include <cstdint>

#include "Orvo/export.h"
#include "Orvo/service/platform.h"

namespace Orvo::Runtime {

/// Whether print servers are asked for their queues.
enum class PrintServers : std::uint8_t {
    asked,
    leftAlone,  ///< for a host that isn't to decide what this machine connects to or waits for
};

/// What a panel is to be given where it runs: this machine's ports and the print servers that it
/// reaches, and a heap of its own. Not to be shared between threads.
///
/// A print server has two seconds in all to answer with at most 1 MiB; one that doesn't is as if
/// there were none. Where they are left alone an enumeration never waits: it lists this machine's
/// devices, and fails for any other name.
ORVO_EXPORT Platform machinePlatform(PrintServers printServers = PrintServers::asked);

}  // namespace Orvo::Runtime
