#pragma once

#include <span>
#include <string>

#include "Orvo/core/event_table.h"

// What host and person do, as a technician would say it (UTF-8, one line).
namespace Orvo::Manager {

/// "Channel 2 muted". The panel script's command for what changes nothing that can be seen.
std::string inWords(const Member& member, std::span<const Value> arguments);

/// "Asked for -12 dB on channel 1".
std::string inWords(const Event& event, std::span<const Value> arguments);

}  // namespace Orvo::Manager
