#pragma once

#include <array>
#include <string_view>

namespace Orvo::Manager {

/// The wave generator's signals as a line of text has them, by wave type.
constexpr auto kSignalNames =
    std::to_array<std::string_view>({"100 Hz", "1 kHz", "10 kHz", "EIAJ", "Line in"});

}  // namespace Orvo::Manager
