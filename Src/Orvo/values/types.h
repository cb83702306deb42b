#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Orvo {

/// 16-bit signed whole number.
using Integer = std::int16_t;

/// 32-bit signed whole number.
using Long = std::int32_t;

/// Length-counted UTF-16 text; may hold any code unit, NUL included.
using String = std::u16string;
using StringView = std::u16string_view;

/// A colour as red, green and blue, 0 to 255 each.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

constexpr Colour rgb(int red, int green, int blue) {
    return {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
            static_cast<std::uint8_t>(blue)};
}

}  // namespace Orvo
