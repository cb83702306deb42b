#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Script/command.h"

namespace Orvo::Script {

/// What the word that is being typed may become. `before` is the line up to that word, `typed` what
/// there is of it already; `grammar` is that of the place.
std::vector<std::string> completions(std::string_view before, std::string_view typed,
                                     const Grammar& grammar);

}  // namespace Orvo::Script
