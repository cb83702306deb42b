#pragma once

#include <string>
#include <string_view>

// The closing lines of commands that are done.
namespace Orvo::Script {

inline std::string ok() { return "ok"; }
inline std::string resultIs(std::string_view value) { return "= " + std::string(value); }

}  // namespace Orvo::Script
