#include "Orvo/generator/oscilloscope.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

#include "Orvo/generator/grid.h"
#include "Orvo/generator/trace.h"
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

constexpr Long kLastIndex = std::numeric_limits<Integer>::max();

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

// The elements with index 1 to `last`; none unless the array is one-dimensional and has them.
std::span<const Integer> samplesFromOne(const IntegerArray& samples, Long last) {
    const Long lower = samples.bounds().lower;
    if (samples.dimensionCount() != 1 || lower > 1) return {};
    const auto skipped = static_cast<std::size_t>(std::int64_t{1} - lower);
    return samples.elements().subspan(skipped, static_cast<std::size_t>(last));
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
    // Indexes are Integers: sample 32768 has none that the next segment could name.
    const Long lastReached = std::min(upper, kLastIndex);
    const auto drawn = samplesFromOne(samples, lastReached);
    if (drawn.empty()) throw Errors::subscriptOutOfRange();
    surface.polyline(tracePoints(drawn, upper, width, height), kTrace);
    if (upper > kLastIndex) {
        static_cast<void>(surface.scaleWidth());
        static_cast<void>(surface.scaleHeight());
        throw Errors::overflow();
    }
}

}  // namespace Orvo
