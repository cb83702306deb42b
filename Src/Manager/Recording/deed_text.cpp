#include "Manager/Recording/deed_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Console/text_of.h"

namespace Orvo::Manager {
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

// The language moves a slider and lets go of it in one.
std::string moveText(const Deed& deed, const Runtime::Store& store) {
    const std::string slider = nameOf(deed.widget);
    const std::string text = "slide " + slider + ' ' + std::to_string(deed.number) + '\n';
    const bool isHeld = store.get<Runtime::StoredSlider>(deed.widget).state().isHeld;
    return isHeld ? text + "hold " + slider + '\n' : text;
}

}  // namespace

std::string deedText(const Deed& deed, const Runtime::Store& store) {
    const std::string widget = nameOf(deed.widget);
    switch (deed.verb) {
        case Deed::Verb::click:
            return "click " + widget + buttonText(deed.button) + '\n';
        case Deed::Verb::dragOff:
            return "release " + widget + buttonText(deed.button) + '\n';
        case Deed::Verb::activate:
            return "activate " + widget + '\n';
        case Deed::Verb::type:
            return "key " + widget + ' ' + std::to_string(static_cast<std::uint16_t>(deed.number)) +
                   '\n';
        case Deed::Verb::pick:
            return "pick " + widget + ' ' + Console::textOf(deed.text) + '\n';
        case Deed::Verb::slide:
            return "slide " + widget + ' ' + std::to_string(deed.number) + '\n';
        case Deed::Verb::move:
            return moveText(deed, store);
        case Deed::Verb::hold:
            return "hold " + widget + '\n';
        case Deed::Verb::drop:
            return "drop " + widget + '\n';
        case Deed::Verb::selectTab:
            return "tab " + std::to_string(deed.number) + '\n';
    }
    return {};
}

}  // namespace Orvo::Manager
