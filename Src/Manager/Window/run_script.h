#pragma once

#include "Manager/Window/options.h"

namespace Orvo::Manager {

/// Runs the script that the options name on a panel in a window, and answers on standard output.
/// While it waits for standard input the window lives; closing it ends the script. Returns the
/// program's status, as orvo-console's.
int runScript(const Options& options);

}  // namespace Orvo::Manager
