#pragma once

#include <string>

#include "Runtime/Store/store.h"

namespace Orvo::Manager {

/// The lines of panel script that do the same, each with its line break.
std::string deedText(const Runtime::Deed& deed, const Runtime::Store& store);

}  // namespace Orvo::Manager
