#include "Orvo/core/value.h"

#include <optional>

#include "Orvo/values/arithmetic.h"
#include "Orvo/values/error.h"
#include "Orvo/values/ignoring_case.h"
#include "Orvo/values/text.h"

namespace Orvo {
namespace {

constexpr StringView kTrue = u"True";
constexpr StringView kFalse = u"False";

double numberOf(std::monostate) { return 0; }
double numberOf(Boolean value) { return value.raw(); }
double numberOf(Integer value) { return value; }
double numberOf(Long value) { return value; }
double numberOf(double value) { return value; }
double numberOf(const String& text) { return numericValue(text); }
double numberOf(const IntegerArray&) { throw Errors::typeMismatch(); }

std::optional<Boolean> truthWord(const Value& value) {
    if (const auto* boolean = std::get_if<Boolean>(&value)) return *boolean;
    const auto* text = std::get_if<String>(&value);
    if (text == nullptr) return std::nullopt;
    if (equalIgnoringCase(StringView(*text), kTrue)) return Boolean(true);
    if (equalIgnoringCase(StringView(*text), kFalse)) return Boolean(false);
    return std::nullopt;
}

String toText(const Value& value) {
    if (const auto* text = std::get_if<String>(&value)) return *text;
    if (const auto* number = std::get_if<double>(&value)) return plainText(*number);
    if (const auto* boolean = std::get_if<Boolean>(&value)) {
        return String(bool(*boolean) ? kTrue : kFalse);
    }
    if (typeOf(value) == ValueType::none) return {};
    return decimalText(
        roundToLong(std::visit([](const auto& held) { return numberOf(held); }, value)));
}

}  // namespace

Value convert(const Value& value, ValueType type) {
    if (typeOf(value) == type) return value;
    if (type == ValueType::array) throw Errors::typeMismatch();
    if (type == ValueType::string) return toText(value);
    if (type == ValueType::boolean) {
        if (const auto truth = truthWord(value)) return *truth;
    }
    const double number = std::visit([](const auto& held) { return numberOf(held); }, value);
    switch (type) {
        case ValueType::boolean:
            return Boolean(number != 0);
        case ValueType::integer:
            return roundToInteger(number);
        case ValueType::longInteger:
            return roundToLong(number);
        case ValueType::number:
            return number;
        default:
            throw Errors::typeMismatch();
    }
}

}  // namespace Orvo
