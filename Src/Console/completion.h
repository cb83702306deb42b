#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Orvo::Console {

/// What the word that is being typed may become. `before` is the line up to that word, `typed` what
/// there is of it already.
std::vector<std::string> completions(std::string_view before, std::string_view typed);

}  // namespace Orvo::Console
