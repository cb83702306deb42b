#pragma once

#include <string>
#include <string_view>

#include "Orvo/values/types.h"

namespace Orvo {

/// Text in code page 1252. A character outside it becomes "?"; the five bytes that the code page
/// leaves open stand for the control characters of the same code.
std::string toAnsi(StringView text);
String fromAnsi(std::string_view bytes);

}  // namespace Orvo
