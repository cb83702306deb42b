#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "Orvo/values/types.h"
#include "Orvo/widgets/reference.h"

namespace Orvo::Runtime {

enum class MouseButton : std::uint8_t { left, right, middle };
inline constexpr std::array kMouseButtons{MouseButton::left, MouseButton::right,
                                          MouseButton::middle};
/// In the order of `kMouseButtons`.
inline constexpr auto kMouseButtonNames =
    std::to_array<std::string_view>({"left", "right", "middle"});

/// Something that a person does to a widget.
struct Deed {
    enum class Verb : std::uint8_t {
        click,     ///< a mouse button goes down and up on the widget
        release,   ///< the same, but it comes up elsewhere
        activate,  ///< from the keyboard
        key,       ///< a character is typed while the widget has the focus
        pick,      ///< an item of a combo box's list is picked
        slide,     ///< a slider is held, moved and let go of
        hold,      ///< a slider's button goes down
        move,      ///< a slider is moved, held or not
        drop,      ///< a slider's button goes up
        tab,       ///< a tab is brought to the front
    };

    Verb verb = Verb::click;
    Widgets::WidgetId widget{};
    MouseButton button = MouseButton::left;  ///< click and release
    int number = 0;  ///< the code of the key, 0 to 65535; the slider's position; the tab
    String text{};   ///< the item that is picked
};

}  // namespace Orvo::Runtime
