#include "Script/deed_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Orvo/layout/layout.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

using Runtime::Deed;

// By the values of MouseButton.
constexpr auto kButtons = std::to_array<std::string_view>({"left", "right", "middle"});

std::string nameOf(Widgets::WidgetId widget) { return std::string(Layout::describe(widget).name); }

// The left button goes without saying.
std::string buttonText(Runtime::MouseButton button) {
    if (button == Runtime::MouseButton::left) return {};
    return ' ' + std::string(kButtons[static_cast<std::size_t>(button)]);
}

}  // namespace

std::string deedText(const Deed& deed) {
    const std::string widget = nameOf(deed.widget);
    switch (deed.verb) {
        case Deed::Verb::click:
            return "click " + widget + buttonText(deed.button);
        case Deed::Verb::dragOff:
            return "release " + widget + buttonText(deed.button);
        case Deed::Verb::activate:
            return "activate " + widget;
        case Deed::Verb::type:
            return "key " + widget + ' ' + std::to_string(static_cast<std::uint16_t>(deed.number));
        case Deed::Verb::pick:
            return "pick " + widget + ' ' + textOf(deed.text);
        case Deed::Verb::slide:
        case Deed::Verb::move:
            return "slide " + widget + ' ' + std::to_string(deed.number);
        case Deed::Verb::hold:
            return "hold " + widget;
        case Deed::Verb::drop:
            return "drop " + widget;
        case Deed::Verb::selectTab:
            return "tab " + std::to_string(deed.number);
    }
    return {};
}

}  // namespace Orvo::Script
