#include "Script/text_of.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "Orvo/values/text.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::size_t kLongestExcerpt = 40;

// By the values of ValueType and of MemberKind.
constexpr auto kTypeNames = std::to_array<std::string_view>(
    {"value", "Boolean", "Integer", "Long", "number", "String", "Integer array"});
constexpr auto kMemberKindNames = std::to_array<std::string_view>({"method", "get", "let"});
static_assert(kTypeNames.size() == static_cast<std::size_t>(ValueType::array) + 1);

std::string hexadecimal(std::uint32_t value, std::size_t width) {
    std::string digits(width, '0');
    for (std::size_t i = width; i-- > 0; value >>= 4U) digits[i] = kHexDigits[value & 0xFU];
    return digits;
}

bool isControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit <= 0x9F); }
bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xD800; }
bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xDC00; }

// Such a unit has no form of its own in UTF-8.
bool isLoneSurrogate(StringView text, std::size_t at) {
    if (isHighSurrogate(text[at])) {
        return at + 1 == text.size() || !isLowSurrogate(text[at + 1]);
    }
    return isLowSurrogate(text[at]) && (at == 0 || !isHighSurrogate(text[at - 1]));
}

std::string escapeOf(char16_t unit) {
    switch (unit) {
        case u'"':
            return "\\\"";
        case u'\\':
            return "\\\\";
        case u'\n':
            return "\\n";
        case u'\t':
            return "\\t";
        default:
            return "\\u" + hexadecimal(unit, 4);
    }
}

bool isUnseen(StringView text, std::size_t at) {
    return isControl(text[at]) || isLoneSurrogate(text, at);
}

bool endsOrEscapes(StringView text, std::size_t at) {
    return text[at] == u'"' || text[at] == u'\\' || isUnseen(text, at);
}

template <bool (*kIsEscaped)(StringView text, std::size_t at)>
std::string escaped(StringView text) {
    std::string out;
    std::size_t plain = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!kIsEscaped(text, at)) continue;
        out += toUtf8(text.substr(plain, at - plain)) + escapeOf(text[at]);
        plain = at + 1;
    }
    return out + toUtf8(text.substr(plain));
}

template <class Number>
std::string decimalForm(Number value) {
    std::array<char, 400> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed)
            .ptr;
    return {digits.data(), end};
}

std::string valueText(std::monostate) { return {}; }
std::string valueText(Boolean value) { return std::to_string(value.raw()); }
std::string valueText(Integer value) { return std::to_string(value); }
std::string valueText(Long value) { return std::to_string(value); }
std::string valueText(double value) { return decimalForm(value); }
std::string valueText(const String& value) { return textOf(StringView(value)); }
std::string valueText(const IntegerArray& value) { return textOf(value); }

std::string wordsOf(std::span<const Value> values) {
    std::string words;
    for (const Value& value : values) words += ' ' + textOf(value);
    return words;
}

}  // namespace

std::string textOf(StringView text) { return '"' + escaped<endsOrEscapes>(text) + '"'; }

std::string onOneLine(std::string_view text) { return escaped<isUnseen>(fromUtf8(text)); }

std::string textOf(Colour colour) {
    return std::to_string(colour.red) + ',' + std::to_string(colour.green) + ',' +
           std::to_string(colour.blue);
}

std::string textOf(float value) { return decimalForm(value); }

std::string textOf(Widgets::Point point) { return textOf(point.x) + ',' + textOf(point.y); }

std::string textOf(const Error& error) {
    return std::to_string(error.number()) + ' ' + error.description();
}

std::string textOf(const IntegerArray& array) {
    if (array.dimensionCount() == 0) return "[]";
    const Long lower = array.bounds().lower;
    const bool isPlain = lower == 1 && !array.elements().empty();
    std::string out = isPlain ? "[" : std::to_string(lower) + ":[";
    for (const Integer element : array.elements()) out += std::to_string(element) + ' ';
    if (out.back() == ' ') out.pop_back();
    return out + ']';
}

std::string textOf(const Value& value) {
    return std::visit([](const auto& held) { return valueText(held); }, value);
}

std::string commandText(const Member& member, std::span<const Value> arguments) {
    const auto word = member.kind == MemberKind::method ? "call" : nameOf(member.kind);
    return std::string(word) + ' ' + std::string(member.name) + wordsOf(arguments);
}

std::string eventText(const Event& event, std::span<const Value> arguments) {
    return "event " + std::string(event.name) + wordsOf(arguments);
}

std::string dispatchIdText(Long dispatchId) {
    return "0x" + hexadecimal(static_cast<std::uint32_t>(dispatchId), 8);
}

std::string_view nameOf(MemberKind kind) {
    return kMemberKindNames[static_cast<std::size_t>(kind)];
}

std::string_view nameOf(ValueType type) { return kTypeNames[static_cast<std::size_t>(type)]; }

std::string excerpt(std::string_view source) {
    const String text = fromUtf8(source.substr(0, 4 * kLongestExcerpt));
    if (text.size() <= kLongestExcerpt) return textOf(StringView(text));
    return textOf(StringView(text.substr(0, kLongestExcerpt) + u"…"));
}

}  // namespace Orvo::Script
