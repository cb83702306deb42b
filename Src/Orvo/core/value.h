#pragma once

#include <cstdint>
#include <type_traits>
#include <variant>

#include "Orvo/export.h"
#include "Orvo/values/boolean.h"
#include "Orvo/values/integer_array.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// An argument or a result of a late-bound call. std::monostate is "no value".
using Value = std::variant<std::monostate, Boolean, Integer, Long, double, String, IntegerArray>;

/// The type of a value; the order is that of the alternatives of Value.
enum class ValueType : std::uint8_t { none, boolean, integer, longInteger, number, string, array };

template <class T>
consteval ValueType valueTypeOf() {
    using Plain = std::remove_cvref_t<T>;
    if constexpr (std::is_void_v<Plain>) return ValueType::none;
    if constexpr (std::is_same_v<Plain, Boolean>) return ValueType::boolean;
    if constexpr (std::is_same_v<Plain, Integer>) return ValueType::integer;
    if constexpr (std::is_same_v<Plain, Long>) return ValueType::longInteger;
    if constexpr (std::is_same_v<Plain, double>) return ValueType::number;
    if constexpr (std::is_same_v<Plain, String>) return ValueType::string;
    if constexpr (std::is_same_v<Plain, IntegerArray>) return ValueType::array;
}

inline ValueType typeOf(const Value& value) { return static_cast<ValueType>(value.index()); }

/// The value as another type, as the component model converts it: numbers round to the nearest,
/// half to even; a number becomes a Boolean by being non-zero; a text must be a number, or "True"
/// or "False" for a Boolean; no value is 0, false or "". Error 6 when a number leaves the type's
/// range, error 13 when it can't be converted.
ORVO_EXPORT Value convert(const Value& value, ValueType type);

}  // namespace Orvo
