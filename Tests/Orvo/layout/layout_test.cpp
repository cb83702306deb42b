#include "Orvo/layout/layout.h"

#include <sstream>

#include <gtest/gtest.h>

#include "Orvo/values/text.h"
#include "Support/approved.h"

namespace Orvo::Tests {
namespace {

using namespace Layout;

std::string hex(Colour colour) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text.data();
}

std::string font(const Font& font) {
    constexpr const char* kFaces[] = {"arial", "microgramma", "serif", "standard"};
    std::ostringstream out;
    out << kFaces[static_cast<int>(font.face)] << ' ' << font.points;
    if (font.isBold) out << " bold";
    if (font.isItalic) out << " italic";
    if (font.isUnderlined) out << " underlined";
    return out.str();
}

std::string line(const Widget& widget) {
    const Style& style = widget.style;
    const auto& [left, top, width, height] = widget.place;
    std::ostringstream out;
    out << widget.name << " | " << nameOf(style.kind) << " | "
        << (widget.container == kPanel ? "-" : describe(widget.container).name) << ' ' << widget.tab
        << " | " << left << ' ' << top << ' ' << width << ' ' << height << " | \""
        << toUtf8(widget.caption) << "\" | " << font(style.font) << " | " << hex(style.text) << ' '
        << hex(style.back) << ' ' << hex(style.fill) << ' ' << hex(style.border);
    if (!style.isVisible) out << " hidden";
    if (!style.isEnabled) out << " disabled";
    if (style.isSelected) out << " selected";
    if (style.isSolid) out << " solid";
    return out.str();
}

TEST(LayoutTest, IsTheListOfAllWidgets) {
    std::ostringstream actual;
    for (const Widget& widget : kWidgets) actual << line(widget) << '\n';
    expectAsKept(ORVO_TESTS "/Orvo/layout/widgets.txt", actual.str());
}

}  // namespace
}  // namespace Orvo::Tests
