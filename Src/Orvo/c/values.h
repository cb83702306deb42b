#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Orvo/core/value.h"
#include "Orvo/orvo.h"

// Values on their way between C and the panel.
namespace Orvo::C {

/// Copies. Throws `badArgument` for what is no value.
std::vector<Value> valuesOf(const orvo_value* arguments, std::size_t count);

/// The value as C sees it, as long as it and `text` live, which is given its text.
orvo_value lent(const Value& value, std::string& text);

/// Throws `badArgument` when there is no room for a value.
void checkRoom(const orvo_value& result);
/// Copies, for `orvo_clear` to free.
void give(const Value& value, orvo_value& result);

}  // namespace Orvo::C
