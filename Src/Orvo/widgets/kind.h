#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Orvo::Widgets {

/// What a widget is.
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

/// What a widget tells the panel.
enum class NotificationKind : std::uint8_t {
    click,     ///< clicked, activated from the keyboard, selected or picked
    release,   ///< a mouse button that was pressed on the widget is released, wherever the pointer
               ///< is
    keyPress,  ///< a character is typed while the widget has the focus
    tick,      ///< a timer came due
    change,    ///< a person moved a slider
};

/// A kind, its name in listings, and the notifications that a panel can handle.
struct KindRow {
    Kind kind{};
    std::string_view name;
    std::array<std::optional<NotificationKind>, 2> gives{};
};

/// In the order of Kind.
inline constexpr auto kKinds = [] {
    using enum NotificationKind;
    return std::to_array<KindRow>({
        {Kind::label, "label"},
        {Kind::shape, "shape"},
        {Kind::line, "line"},
        {Kind::frame, "frame"},
        {Kind::button, "button", {click, release}},
        {Kind::option, "option", {click}},
        {Kind::check, "check", {release}},
        {Kind::combo, "combo", {click, keyPress}},
        {Kind::list, "list", {keyPress}},
        {Kind::picture, "picture"},
        {Kind::image, "image"},
        {Kind::timer, "timer", {tick}},
        {Kind::tabs, "tabs"},
        {Kind::digit, "digit"},
        {Kind::slider, "slider", {change}},
    });
}();
static_assert(std::is_sorted(kKinds.begin(), kKinds.end(),
                             [](auto& a, auto& b) { return a.kind < b.kind; }));

constexpr std::string_view nameOf(Kind kind) { return kKinds[static_cast<std::size_t>(kind)].name; }

constexpr bool gives(Kind kind, NotificationKind notification) {
    const auto& given = kKinds[static_cast<std::size_t>(kind)].gives;
    return std::find(given.begin(), given.end(), notification) != given.end();
}

}  // namespace Orvo::Widgets
