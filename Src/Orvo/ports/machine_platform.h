#pragma once

#include "Orvo/service/platform.h"

namespace Orvo::Runtime {

/// What a panel is to be given where it runs: this machine's ports and the print servers that it
/// reaches, waiting three seconds for one at most, and a heap of its own. Not to be shared between
/// threads.
Platform machinePlatform();

}  // namespace Orvo::Runtime
