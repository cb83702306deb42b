#pragma once

#include <span>
#include <vector>

#include "Orvo/service/platform.h"
#include "Orvo/service/port_discovery.h"

namespace Orvo::Runtime {

using Ports = std::vector<PortRecord>;

/// Answers an enumeration call with these ports: their records, then their texts, written into
/// `buffer`, which stands at `address`; see `PortSpooler`. `needed` is set in any case. False, with
/// a `count` of 0 and nothing written, when the buffer is too small.
bool writePortRecords(std::span<const PortRecord> ports, Long address, std::span<std::byte> buffer,
                      Long& needed, Long& count);

}  // namespace Orvo::Runtime
