#pragma once

#include <array>
#include <string_view>

#include "Orvo/layout/style.h"

namespace Orvo::Layout {

/// Left, top, width and height in twips (1/1440 inch) from the container's corner; for a line, the
/// two ends x1, y1, x2, y2.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(const Place&, const Place&) = default;
};

/// A widget. An element of a widget array is named "NAME(INDEX)".
struct Row {
    std::string_view name;
    Style style;
    std::u16string_view caption;
    Place place;
};

constexpr int kSame = -1;

/// What sets the second pair's widget apart from the first pair's.
struct Twin {
    std::u16string_view itsCaption{};
    Place differs{kSame, kSame, kSame, kSame};

    [[nodiscard]] constexpr Twin caption(std::u16string_view text) const { return {text, differs}; }
    [[nodiscard]] constexpr Twin left(int twips) const {
        return {itsCaption, with(differs, &Place::left, twips)};
    }
    [[nodiscard]] constexpr Twin width(int twips) const {
        return {itsCaption, with(differs, &Place::width, twips)};
    }
    [[nodiscard]] constexpr Twin height(int twips) const {
        return {itsCaption, with(differs, &Place::height, twips)};
    }
};

constexpr Twin twin() { return {}; }

/// A widget of pair 12 and its twin of pair 34.
struct TwinRow {
    std::string_view pair12;
    std::string_view pair34;
    Style style;
    std::u16string_view caption;
    Place place;
    Twin other = twin();
};

/// One widget of the volume block of each channel. The lower channels' blocks (2 and 4) are shifted
/// down, and `lowerLeft` further to the left, against the upper ones (1 and 3).
struct VolumeRow {
    std::array<std::string_view, 4> channels;
    Style style;
    std::u16string_view caption;
    Place place;
    int lowerLeft = 0;
};

/// One widget of each of the four rail readouts: power and aux of pair 12, power and aux of
/// pair 34.
struct RailRow {
    std::array<std::string_view, 4> rails;
    Style style;
    std::u16string_view powerCaption;
    std::u16string_view auxCaption;
    Place place;
};

/// The five segments that lead from the generator to one input of a channel, the one next to the
/// amplifier first; pair 34's array has them in another order.
struct RouteRow {
    std::array<std::string_view, 5> pair12;
    std::array<std::string_view, 5> pair34;
    std::array<Place, 5> segments;
    int pair34End = kSame;  ///< x2 of the first segment
};

}  // namespace Orvo::Layout
