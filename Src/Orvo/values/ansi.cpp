#include "Orvo/values/ansi.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Orvo {
namespace {

// What bytes 0x80 to 0x9F stand for; all others stand for the character of the same code.
constexpr std::array<char16_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned kFirstControl = 0x80;
constexpr unsigned kFirstLatin = 0xA0;

constexpr bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

char ansiOf(char16_t unit) {
    if (unit < kFirstControl || (unit >= kFirstLatin && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), unit);
    if (found == kUpperControls.end()) return '?';
    return static_cast<char>(kFirstControl + static_cast<unsigned>(found - kUpperControls.begin()));
}

}  // namespace

std::string toAnsi(StringView text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool endsPair = i > 0 && isLowSurrogate(text[i]) && (text[i - 1] & 0xFC00) == 0xD800;
        if (!endsPair) bytes += ansiOf(text[i]);
    }
    return bytes;
}

String fromAnsi(std::string_view bytes) {
    String text;
    for (const char byte : bytes) {
        const unsigned code = static_cast<unsigned char>(byte);
        const bool isUpperControl = code >= kFirstControl && code < kFirstLatin;
        text += isUpperControl ? kUpperControls[code - kFirstControl] : static_cast<char16_t>(code);
    }
    return text;
}

}  // namespace Orvo
