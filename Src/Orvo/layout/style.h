#pragma once

#include <cstdint>
#include <type_traits>

#include "Orvo/values/types.h"
#include "Orvo/widgets/kind.h"

namespace Orvo::Layout {

using Widgets::Kind;

/// The same, but for one part.
template <class Whole, class Part>
constexpr Whole with(Whole whole, Part Whole::*part, std::type_identity_t<Part> value) {
    whole.*part = value;
    return whole;
}

enum class Face : std::uint8_t { arial, microgramma, serif, standard };

struct Font {
    Face face = Face::standard;
    double points = 8.25;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;

    [[nodiscard]] constexpr Font sized(double size) const {
        return with(*this, &Font::points, size);
    }
    [[nodiscard]] constexpr Font bold() const { return with(*this, &Font::isBold, true); }
    [[nodiscard]] constexpr Font italic() const { return with(*this, &Font::isItalic, true); }
    [[nodiscard]] constexpr Font underlined() const {
        return with(*this, &Font::isUnderlined, true);
    }

    friend constexpr bool operator==(const Font&, const Font&) = default;
};

enum class Outline : std::uint8_t { circle, rectangle };

/// How a label's text lies in its place: one line that may run over its width to the right, or
/// wrapped and centred in it.
enum class TextFlow : std::uint8_t { line, wrapped };

enum class Image : std::uint8_t { none, commonTab, pairTab, powerButton };

/// A widget's kind and everything about its looks and first state that several widgets share.
struct Style {
    Kind kind = Kind::label;
    Font font{};
    Colour text{};    ///< text, line, lit parts of a digit
    Colour back{};    ///< background, dark lamp, unlit parts of a digit
    Colour fill{};    ///< a shape's fill, shown while its fill style is solid
    Colour border{};  ///< a shape's outline
    Outline outline = Outline::circle;
    TextFlow flow = TextFlow::line;
    Image image = Image::none;
    bool isOpaque = true;  ///< whether `back` is painted
    bool isSolid = false;  ///< a shape's fill style at creation
    bool isVisible = true;
    bool isEnabled = true;
    bool isSelected = false;  ///< an option's value at creation

    [[nodiscard]] constexpr Style hidden() const { return with(*this, &Style::isVisible, false); }
    [[nodiscard]] constexpr Style disabled() const { return with(*this, &Style::isEnabled, false); }
    [[nodiscard]] constexpr Style selected() const { return with(*this, &Style::isSelected, true); }
    [[nodiscard]] constexpr Style wrapped() const {
        return with(*this, &Style::flow, TextFlow::wrapped);
    }
};

constexpr Font kArial{.face = Face::arial};
constexpr Font kMicrogramma = Font{.face = Face::microgramma}.bold();
constexpr Font kSerif{.face = Face::serif};

constexpr Colour kBlack = rgb(0, 0, 0);
constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kRed = rgb(255, 0, 0);
constexpr Colour kGreen = rgb(0, 255, 0);
constexpr Colour kGrey = rgb(192, 192, 192);
constexpr Colour kCommonText = rgb(71, 70, 94);
constexpr Colour kPairText = rgb(255, 255, 128);
constexpr Colour kActiveTitleText = kWhite;  // system colour 9

constexpr Style label(Font font, Colour text) {
    return {.kind = Kind::label, .font = font, .text = text, .isOpaque = false};
}
constexpr Style lamp(Colour dark, Colour lit) {
    return {.kind = Kind::shape, .back = dark, .fill = lit, .border = kBlack};
}
constexpr Style dot(Colour colour) {
    return {.kind = Kind::shape, .back = colour, .fill = colour, .border = colour, .isSolid = true};
}
constexpr Style rectangle(Colour border) {
    return {
        .kind = Kind::shape, .border = border, .outline = Outline::rectangle, .isOpaque = false};
}
constexpr Style digit(Colour lit, Colour unlit) {
    return {.kind = Kind::digit, .text = lit, .back = unlit};
}
constexpr Style image(Image picture) { return {.kind = Kind::image, .image = picture}; }
constexpr Style plain(Kind kind, Font font = {}, Colour back = kGrey, Colour text = kBlack) {
    return {.kind = kind, .font = font, .text = text, .back = back};
}

constexpr Style greenLamp = lamp(rgb(0, 64, 0), kGreen);
constexpr Style redLamp = lamp(rgb(64, 0, 0), kRed);
constexpr Style line{.kind = Kind::line, .text = kWhite};
constexpr Style button = plain(Kind::button);
constexpr Style slider = plain(Kind::slider);
constexpr Style picture = plain(Kind::picture, kSerif, kBlack);
constexpr Style timer = plain(Kind::timer);
constexpr Style powerCheck{.kind = Kind::check, .back = kGrey, .image = Image::powerButton};

constexpr Style frame(Colour back) { return plain(Kind::frame, kArial, back); }
constexpr Style option(Colour back) { return plain(Kind::option, kArial, back, kPairText); }

}  // namespace Orvo::Layout
