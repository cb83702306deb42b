#include "Script/literals.h"

#include "Orvo/values/text.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kDecimal = "0123456789";
constexpr std::string_view kHexadecimal = "0123456789abcdefABCDEF";
constexpr std::string_view kBareText =
    "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ.-_:/";

bool consistsOf(std::string_view text, std::string_view characters) {
    return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

std::optional<Value> booleanLiteral(const Word& word) {
    if (word.form != Word::Form::bare) return std::nullopt;
    if (word.source == "true") return Boolean(true);
    if (word.source == "false") return Boolean(false);
    if (const auto raw = wholeNumberOrBits<Integer>(word.source)) return Boolean(*raw);
    return std::nullopt;
}

template <class Whole>
std::optional<Value> wholeLiteral(const Word& word) {
    if (word.form != Word::Form::bare) return std::nullopt;
    return wholeNumberOrBits<Whole>(word.source);
}

template <class Whole>
std::optional<Value> naturalWhole(const Word& word) {
    if (word.form != Word::Form::bare) return std::nullopt;
    return wholeNumber<Whole>(word.source);
}

std::optional<Value> stringLiteral(const Word& word) {
    if (word.form == Word::Form::quoted) return word.text;
    if (word.form == Word::Form::array || !consistsOf(word.source, kBareText)) return std::nullopt;
    return fromUtf8(word.source);
}

std::optional<Value> arrayLiteral(const Word& word) {
    if (word.form != Word::Form::array) return std::nullopt;
    return word.array;
}

std::optional<Value> numberLiteral(const Word& word) {
    const auto written = word.form == Word::Form::bare ? digitsOf(word.source) : std::nullopt;
    if (!written) return std::nullopt;
    double value = 0;
    const auto format = written->base == 16 ? std::chars_format::hex : std::chars_format::fixed;
    const auto& digits = written->digits;
    const auto [end, status] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, format);
    if (status != std::errc{}) return std::nullopt;
    return written->isNegative ? -value : value;
}

}  // namespace

std::optional<Digits> digitsOf(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) text.remove_prefix(1);
    const bool isHexadecimal = text.starts_with("0x");
    if (isHexadecimal) text.remove_prefix(2);
    if (!consistsOf(text, isHexadecimal ? kHexadecimal : kDecimal)) return std::nullopt;
    return Digits{text, isHexadecimal ? 16 : 10, isNegative};
}

std::optional<Value> literalOrNone(const Word& word, ValueType type) {
    switch (type) {
        case ValueType::boolean:
            return booleanLiteral(word);
        case ValueType::integer:
            return wholeLiteral<Integer>(word);
        case ValueType::longInteger:
            return wholeLiteral<Long>(word);
        case ValueType::number:
            return numberLiteral(word);
        case ValueType::string:
            return stringLiteral(word);
        case ValueType::array:
            return arrayLiteral(word);
        case ValueType::none:
            break;
    }
    return std::nullopt;
}

Value literal(const Word& word, ValueType type) {
    if (auto value = literalOrNone(word, type)) return *std::move(value);
    throw Misunderstood{excerpt(word.source) + " is no " + std::string(nameOf(type)), word.offset};
}

Value naturalLiteral(const Word& word) {
    using enum ValueType;
    const bool isTruth = word.source == "true" || word.source == "false";
    if (isTruth) return literal(word, boolean);
    if (auto value = naturalWhole<Integer>(word)) return *std::move(value);
    if (auto value = naturalWhole<Long>(word)) return *std::move(value);
    for (const ValueType type : {number, array}) {
        if (auto value = literalOrNone(word, type)) return *std::move(value);
    }
    return literal(word, string);
}

}  // namespace Orvo::Script
