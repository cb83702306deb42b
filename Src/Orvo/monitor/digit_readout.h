#pragma once

#include <cstddef>

#include "Orvo/layout/roles.h"
#include "Orvo/values/error.h"
#include "Orvo/values/text.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// Error 13 when the character is no decimal digit.
constexpr Integer digitOf(char16_t character) {
    if (character < u'0' || character > u'9') throw Errors::typeMismatch();
    return static_cast<Integer>(character - u'0');
}

/// Shows the first characters of a number's decimal text, with "0" in front up to the readout's
/// width, one on each digit from left to right. Error 13 for a minus sign; the digits before it are
/// shown.
inline void showNumber(Widgets::WidgetTree& widgets, const Layout::Readout& readout,
                       Integer value) {
    String text = decimalText(value);
    if (text.size() < readout.width) text.insert(0, readout.width - text.size(), u'0');
    for (std::size_t i = 0; i < readout.width; ++i) {
        widgets[readout.places[i]].setDigit(digitOf(text[i]));
    }
}

}  // namespace Orvo
