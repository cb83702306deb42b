#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "Orvo/values/types.h"
#include "Orvo/widgets/reference.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo::Runtime {

using Widgets::WidgetId;

/// What the panel asks of a widget.
enum class Verb : std::uint8_t {
    readCaption,
    setCaption,
    setColour,
    readFillStyle,
    setFillStyle,
    setVisible,
    setEnabled,
    readValue,
    setValue,
    addItem,
    clear,
    readText,
    setText,
    setDrawWidth,
    setScaleMode,
    readScaleWidth,
    readScaleHeight,
    line,
    setCurrentX,
    setCurrentY,
    setForeColour,
    setFontSize,
    print,
    setCurrentTab,
    readTabEnabled,
    setTabEnabled,
    setDigit,
    readPosition,
    setPosition,
    readButtonDown,
    setMaximum,
    setPointer,
    ask,
};

struct LineSegment {
    Widgets::Point from;
    Widgets::Point to;
    Colour colour;

    friend constexpr bool operator==(const LineSegment&, const LineSegment&) = default;
};

/// The line that joins the sample with that place, above 0, to the one before it.
constexpr LineSegment segmentTo(const Widgets::Trace& trace, std::size_t place) {
    return {trace.at(place - 1), trace.at(place), trace.colour};
}

/// One operation of the panel on a widget, with what it writes; `StringView` is valid during the
/// call only.
struct Operation {
    std::optional<WidgetId> widget{};  ///< none: the mouse pointer and the input prompt
    Verb verb = Verb::readCaption;
    std::variant<std::monostate, Integer, float, StringView, Colour, LineSegment> value{};
    Integer tab = 0;  ///< readTabEnabled and setTabEnabled only
};

/// Sees every operation before it is carried out.
class OperationObserver {
public:
    virtual ~OperationObserver() = default;
    /// Makes the operation fail by throwing an Error.
    virtual void before(const Operation& operation) = 0;
};

}  // namespace Orvo::Runtime
