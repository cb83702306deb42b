#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <variant>
#include <vector>

#include "Orvo/export.h"
#include "Orvo/store/operation.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/lamp.h"
#include "Orvo/widgets/widgets.h"

// The state of each kind of widget, as a screen reads it.
namespace Orvo::Runtime {

struct LabelState {
    String caption;
    Colour colour;
};

struct ShapeState {
    Widgets::FillStyle fillStyle = Widgets::FillStyle::transparent;

    [[nodiscard]] bool isLit() const { return Widgets::isLit(fillStyle); }
};

struct LineState {
    Colour colour;
};

struct OptionState {
    bool value = false;
};

struct CheckState {
    Widgets::CheckValue value = Widgets::CheckValue::unchecked;
};

struct ComboState {
    String text;
    std::vector<String> items;
};

/// A screen that keeps up with a growing list compares `clears` first, then the number of items.
struct ListState {
    static constexpr std::size_t kMostItems = std::size_t{1} << 21;
    static constexpr std::size_t kMostText = std::size_t{1} << 26;  ///< characters in all

    std::deque<String> items;
    std::size_t text = 0;  ///< characters in all
    std::uint64_t clears = 0;
};

struct TimerState {
    std::chrono::milliseconds interval{};
    std::chrono::milliseconds due{};  ///< on the store's clock, while enabled
};

struct DrawnText {
    Widgets::Point at;
    String text;
    Colour colour;
    float points = 0;

    friend bool operator==(const DrawnText&, const DrawnText&) = default;
};

using Drawn = std::variant<LineSegment, DrawnText, Widgets::Trace>;

/// What has been drawn since the surface was last cleared, in order.
struct PictureState {
    std::vector<Drawn> drawing;
    Widgets::Point current;
    Colour foreColour;
    float fontSize = 0;
    Integer drawWidth = 1;
};

struct TabsState {
    Integer current = 0;
    std::vector<bool> enabled;
};

struct DigitState {
    std::optional<Integer> digit;  ///< none before the first: every part unlit
};

struct SliderState {
    Integer position = 0;
    Integer maximum = 30;
    bool isHeld = false;

    static constexpr Integer kMinimum = 0;
    /// The bound nearest to what is beyond the bounds.
    [[nodiscard]] Integer within(int wanted) const;
    /// Where the cap is drawn: the position, or the bound nearest to it.
    [[nodiscard]] ORVO_OWN_EXPORT Integer shown() const;
};

}  // namespace Orvo::Runtime
