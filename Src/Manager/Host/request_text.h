#pragma once

#include <string>

#include "Simulator/message.h"

namespace Orvo::Simulator {

/// What a request asks for, as the log says it: Channel 1: 100 Hz to the negative input.
std::string describe(const Command& command);

}  // namespace Orvo::Simulator
