#include "Orvo/values/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "Orvo/values/error.h"

namespace Orvo {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
constexpr bool isBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

char32_t nextCodePoint(StringView text, std::size_t& at) {
    const char32_t first = text[at++];
    if (!isHighSurrogate(first)) return isLowSurrogate(first) ? kReplacement : first;
    if (at == text.size() || !isLowSurrogate(text[at])) return kReplacement;
    return 0x10000 + ((first - 0xD800) << 10U) + (static_cast<char32_t>(text[at++]) - 0xDC00);
}

void appendUtf8(std::string& out, char32_t point) {
    const auto put = [&out](char32_t byte) { out += static_cast<char>(byte); };
    const auto putTail = [&](unsigned shift) { put(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) return put(point);
    if (point < 0x800) {
        put(0xC0 | (point >> 6U));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12U));
        putTail(6);
    } else {
        put(0xF0 | (point >> 18U));
        putTail(12);
        putTail(6);
    }
    putTail(0);
}

void appendUtf16(String& out, char32_t point) {
    if (point < 0x10000) {
        out += static_cast<char16_t>(point);
        return;
    }
    out += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10U));
    out += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FFU));
}

struct Lead {
    std::size_t tail;
    char32_t bits;
    char32_t least;  // smaller code points have a shorter form, which alone is well formed
};

constexpr Lead leadOf(unsigned char byte) {
    if (byte < 0x80) return {0, byte, 0};
    if (byte >= 0xC0 && byte < 0xE0) return {1, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return {2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF8) return {3, byte & 0x07U, 0x10000};
    return {0, kReplacement, 0};
}

char32_t nextCodePoint(std::string_view text, std::size_t& at) {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const Lead lead = leadOf(byteAt(at++));
    char32_t point = lead.bits;
    for (std::size_t i = 0; i < lead.tail; ++i) {
        if (at == text.size() || (byteAt(at) & 0xC0U) != 0x80) return kReplacement;
        point = (point << 6U) | (byteAt(at++) & 0x3FU);
    }
    const bool surrogate = isHighSurrogate(point) || isLowSurrogate(point);
    return point < lead.least || point > 0x10FFFF || surrogate ? kReplacement : point;
}

std::string asciiTrimmed(StringView text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    std::string ascii;
    for (const char16_t unit : text) {
        if (unit > 0x7F) throw Errors::typeMismatch();
        ascii += static_cast<char>(unit);
    }
    return ascii;
}

template <class... Arguments>
String converted(Arguments... arguments) {
    std::array<char, 40> characters{};
    const auto end = std::to_chars(characters.begin(), characters.end(), arguments...).ptr;
    return {characters.begin(), end};
}

}  // namespace

String decimalText(std::int64_t value) { return converted(value); }

String plainText(double value) {
    const double magnitude = std::abs(value);
    const bool isPlain = value == 0 || (magnitude >= 1e-4 && magnitude < 1e15);
    return isPlain ? converted(value, std::chars_format::fixed) : converted(value);
}

double numericValue(StringView text) {
    const std::string ascii = asciiTrimmed(text);
    const char* first = ascii.data();
    const char* last = first + ascii.size();
    const bool negative = first != last && *first == '-';
    if (first != last && (*first == '+' || *first == '-')) ++first;
    // What follows the sign must be digits: from_chars would also take "inf", "nan" and "--1".
    if (first == last || !((*first >= '0' && *first <= '9') || *first == '.')) {
        throw Errors::typeMismatch();
    }
    double value = 0;
    const auto [end, status] = std::from_chars(first, last, value);
    if (end != last) throw Errors::typeMismatch();
    if (status == std::errc::result_out_of_range) throw Errors::overflow();
    if (status != std::errc{}) throw Errors::typeMismatch();
    return negative ? -value : value;
}

std::string toUtf8(StringView text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) appendUtf8(out, nextCodePoint(text, at));
    return out;
}

String fromUtf8(std::string_view text) {
    String out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) appendUtf16(out, nextCodePoint(text, at));
    return out;
}

}  // namespace Orvo
