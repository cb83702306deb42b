#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

#include "Orvo/core/value.h"
#include "Script/words.h"

namespace Orvo::Script {

/// The digits of a whole number: decimal, or hexadecimal after "0x", with an optional sign.
struct Digits {
    std::string_view digits;
    int base = 10;
    bool isNegative = false;
};

/// None when the text is not written that way.
std::optional<Digits> digitsOf(std::string_view text);

/// None also when the number doesn't fit in a `Whole`.
template <std::integral Whole>
std::optional<Whole> wholeNumber(std::string_view text) {
    const auto written = digitsOf(text);
    if (!written) return std::nullopt;
    long long value = 0;
    const auto& digits = written->digits;
    const auto [end, status] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, written->base);
    if (status != std::errc{}) return std::nullopt;
    if (written->isNegative) value = -value;
    if (!std::in_range<Whole>(value)) return std::nullopt;
    return static_cast<Whole>(value);
}

/// The same, but what is hexadecimal may also be the bits of a negative number: 0xFFFF is -1.
template <std::signed_integral Whole>
std::optional<Whole> wholeNumberOrBits(std::string_view text) {
    if (const auto number = wholeNumber<Whole>(text)) return number;
    const auto written = digitsOf(text);
    if (!written || written->base != 16) return std::nullopt;
    const auto bits = wholeNumber<std::make_unsigned_t<Whole>>(text);
    return bits ? std::optional(static_cast<Whole>(*bits)) : std::nullopt;
}

/// What a word stands for where a value of this type is expected; none when it is no literal of the
/// type.
std::optional<Value> literalOrNone(const Word& word, ValueType type);
/// The same; throws Misunderstood.
Value literal(const Word& word, ValueType type);

/// What a word stands for where any value may stand: a number in the narrowest type that holds it.
Value naturalLiteral(const Word& word);

}  // namespace Orvo::Script
