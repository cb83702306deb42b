#pragma once

#include <cstddef>
#include <span>

#include "Orvo/values/arithmetic.h"
#include "Orvo/values/text.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The decimal text of a value with "0" in front up to `width` characters.
inline String paddedText(Integer value, std::size_t width) {
    String text = decimalText(value);
    if (text.size() < width) text.insert(0, width - text.size(), u'0');
    return text;
}

/// The digit that one character stands for. Error 13 for a minus sign.
inline Integer digitOf(StringView text, std::size_t position) {
    return roundToInteger(numericValue(text.substr(position, 1)));
}

/// Shows the first characters of a text, one on each digit widget from left to right.
/// Error 13 at a character that is no digit; the digits before it are shown.
inline void showDigits(Widgets::WidgetTree& widgets, std::span<const Widgets::DigitRef> digits,
                       StringView text) {
    for (std::size_t i = 0; i < digits.size(); ++i) widgets[digits[i]].setDigit(digitOf(text, i));
}

}  // namespace Orvo
