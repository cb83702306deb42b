#pragma once

#include <cstdint>

namespace Orvo::Widgets {

/// What a widget is; its name in lower case is the one that listings print.
enum class Kind : std::uint8_t {
    label,
    shape,
    line,
    frame,
    button,
    option,
    check,
    combo,
    list,
    picture,
    image,
    timer,
    tabs,
    digit,
    slider,
};

}  // namespace Orvo::Widgets
