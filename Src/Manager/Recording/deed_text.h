#pragma once

#include <string>

#include "Runtime/Store/input_observer.h"

namespace Orvo::Manager {

/// The command of panel script that does the same. A held slider that is moved is let go of.
std::string deedText(const Runtime::Deed& deed);

}  // namespace Orvo::Manager
