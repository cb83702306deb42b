#include "Orvo/generator/oscilloscope.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "Orvo/generator/grid.h"
#include "Orvo/layout/roles.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/error.h"
#include "Orvo/values/indexed.h"
#include "Orvo/values/text.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr float kMarkLeft = 1;
constexpr float kMarkRight = 5;
constexpr float kLabelLeft = 7;
constexpr float kLabelRise = 5;
constexpr float kLabelPoints = 6;
constexpr Colour kZeroLine = rgb(0, 100, 0);
constexpr Colour kMark = rgb(0, 150, 0);
constexpr Colour kLabel = rgb(0, 200, 0);
constexpr Colour kTrace = rgb(0, 255, 0);

constexpr std::size_t kLastIndex = std::numeric_limits<Integer>::max();

void drawMark(Picture& surface, const GridMark& mark) {
    const auto y = static_cast<float>(mark.y);
    if (mark.volts == 0) surface.line({0, y}, {surface.scaleWidth(), y}, kZeroLine);
    surface.line({kMarkLeft, y}, {kMarkRight, y}, kMark);
    surface.setCurrentX(kLabelLeft);
    surface.setCurrentY(y - kLabelRise);
    surface.setForeColour(kLabel);
    surface.setFontSize(kLabelPoints);
    surface.print(decimalText(mark.volts) + u" V");
}

}  // namespace

void Oscilloscope::drawAxes(Integer channel) {
    const Channel* chosen = entry(kChannels, channel);
    Picture& surface = widgets_[(chosen != nullptr ? *chosen : kChannels.front()).scope];
    surface.clear();
    surface.setDrawWidth(1);
    surface.setScaleMode(ScaleMode::pixels);
    for (const GridMark& mark : gridMarks(surface.scaleHeight())) drawMark(surface, mark);
}

void Oscilloscope::drawTrace(Integer channel, const IntegerArray& samples) {
    const Channel* chosen = entry(kChannels, channel);
    if (chosen == nullptr) throw Errors::invalidCall();
    Picture& surface = widgets_[chosen->scope];
    surface.setDrawWidth(1);
    surface.setScaleMode(ScaleMode::pixels);
    surface.clear();
    drawAxes(channel);
    const Long upper = samples.bounds().upper;
    const Integer segments = toInteger(std::int64_t{upper} - 1);
    if (segments < 1) return;
    const float width = surface.scaleWidth();
    const float height = surface.scaleHeight();
    const auto fromOne = samples.elementsFrom(1);
    if (fromOne.empty()) throw Errors::subscriptOutOfRange();
    // Indexes are Integers: sample 32768 has none that the next segment could name.
    const auto drawn = fromOne.first(std::min(fromOne.size(), kLastIndex));
    surface.trace({{drawn.begin(), drawn.end()}, upper, width, height, kTrace});
    if (drawn.size() < fromOne.size()) {
        static_cast<void>(surface.scaleWidth());
        static_cast<void>(surface.scaleHeight());
        throw Errors::overflow();
    }
}

}  // namespace Orvo
