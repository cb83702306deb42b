#pragma once

#include <string>

#include "Orvo/store/input_observer.h"

namespace Orvo::Script {

/// The command of panel script that does the same. A held slider that is moved is let go of.
std::string deedText(const Runtime::Deed& deed);

}  // namespace Orvo::Script
