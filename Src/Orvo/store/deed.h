#pragma once

#include <cstdint>

#include "Orvo/values/types.h"
#include "Orvo/widgets/reference.h"

namespace Orvo::Runtime {

enum class MouseButton : std::uint8_t { left, right, middle };

/// Something that a person does to a widget.
struct Deed {
    using WidgetId = Widgets::WidgetId;

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
    WidgetId widget{};
    MouseButton button = MouseButton::left;  ///< click and release
    int number = 0;  ///< the code of the key, 0 to 65535; the slider's position; the tab
    String text{};   ///< the item that is picked

    static Deed click(WidgetId widget, MouseButton button = MouseButton::left) {
        return {.verb = Verb::click, .widget = widget, .button = button};
    }
    static Deed activate(WidgetId widget) { return {.verb = Verb::activate, .widget = widget}; }
    static Deed key(WidgetId widget, char16_t code) {
        return {.verb = Verb::key, .widget = widget, .number = code};
    }
    static Deed pick(WidgetId combo, StringView item) {
        return {.verb = Verb::pick, .widget = combo, .text = String(item)};
    }
    static Deed slide(WidgetId slider, int position) {
        return {.verb = Verb::slide, .widget = slider, .number = position};
    }
    static Deed hold(WidgetId slider) { return {.verb = Verb::hold, .widget = slider}; }
    static Deed move(WidgetId slider, int position) {
        return {.verb = Verb::move, .widget = slider, .number = position};
    }
    static Deed drop(WidgetId slider) { return {.verb = Verb::drop, .widget = slider}; }
    static Deed tab(WidgetId tabs, int number) {
        return {.verb = Verb::tab, .widget = tabs, .number = number};
    }
};

}  // namespace Orvo::Runtime
