#pragma once

#include "Manager/Window/options.h"

namespace Orvo::Manager {

/// What a person would see and do first, without a display: the amplifier comes up, is switched on
/// and plays; then a picture of each tab is saved. Says on standard output what it does and where
/// the pictures are. Returns the program's status, 0 when all of that happened.
int demonstrate(const Options& options);

}  // namespace Orvo::Manager
