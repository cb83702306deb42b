#pragma once

#include <string>

#include "Simulator/message.h"

namespace Orvo::Manager {

/// What a request asks for, as the log says it: Channel 1: 100 Hz to the negative input.
std::string describe(const Simulator::Request& request);

}  // namespace Orvo::Manager
