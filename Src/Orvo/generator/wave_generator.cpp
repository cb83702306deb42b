#include "Orvo/generator/wave_generator.h"

#include <array>
#include <cstddef>

#include "Orvo/layout/layout.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr Colour kHighlight = rgb(255, 255, 255);
constexpr Colour kDim = rgb(100, 100, 100);
constexpr Integer kSegments = 5;
constexpr Integer kLineIn = 4;

struct Route {
    OptionRef option;
    LineArrayRef segments;
    LineRef selector;
};

struct Channel {
    Route positive;
    Route negative;
    LineRef line;
};

struct Pair {
    std::array<OptionRef, 5> signals;  // by wave type
    Channel upper;
    Channel lower;
};

consteval Route route(const char* option, const char* segments, const char* selector) {
    return {optionRef(option), lineArray(segments), lineRef(selector)};
}

constexpr std::array<Pair, 2> kPairs{{
    {{optionRef("opt100hz_ch12"), optionRef("opt1000hz_ch12"), optionRef("opt10000hz_ch12"),
      optionRef("optEIAJ_ch12"), optionRef("optLineIn12")},
     {route("optP1", "lin1p", "lin1PSelect"), route("optN1", "lin1n", "lin1NSelect"),
      lineRef("lin1")},
     {route("optP2", "lin2p", "lin2PSelect"), route("optN2", "lin2n", "lin2NSelect"),
      lineRef("lin2")}},
    {{optionRef("opt100hz_Ch34"), optionRef("opt1000hz_Ch34"), optionRef("opt10000hz_Ch34"),
      optionRef("optEIAJ_Ch34"), optionRef("optLineIn34")},
     {route("optP3", "lin3p", "lin3PSelect"), route("optN3", "lin3n", "lin3NSelect"),
      lineRef("lin3")},
     {route("optP4", "lin4p", "lin4Pselect"), route("optN4", "lin4n", "lin4NSelect"),
      lineRef("Lin4")}},
}};

void showRoute(WidgetTree& widgets, const Route& route, bool isChosen) {
    for (Integer i = 0; i < kSegments; ++i) {
        widgets[route.segments.at(i)].setColour(isChosen ? kHighlight : kDim);
    }
    widgets[route.selector].setVisible(isChosen);
}

void showChannelLine(WidgetTree& widgets, const Channel& channel, bool isChosen) {
    widgets[channel.line].setColour(isChosen ? kHighlight : kDim);
}

}  // namespace

void WaveGenerator::route(Integer channel, Polarity polarity) {
    const Pair& pair = kPairs[channel <= 2 ? 0 : 1];
    const bool isUpper = channel % 2 == 1;
    const bool isPositive = polarity == Polarity::positive;
    showRoute(widgets_, pair.upper.negative, isUpper && !isPositive);
    showRoute(widgets_, pair.upper.positive, isUpper && isPositive);
    showChannelLine(widgets_, pair.upper, isUpper);
    showRoute(widgets_, pair.lower.positive, !isUpper && isPositive);
    showRoute(widgets_, pair.lower.negative, !isUpper && !isPositive);
    showChannelLine(widgets_, pair.lower, !isUpper);
}

Integer WaveGenerator::waveType(Integer pair) const {
    const auto& signals = entry(kPairs, pair)->signals;
    if (widgets_[signals[kLineIn]].value()) return kLineIn;
    Integer type = 0;
    for (Integer i = 0; i < kLineIn; ++i) {
        if (widgets_[signals[static_cast<std::size_t>(i)]].value()) type = i;
    }
    return type;
}

void WaveGenerator::start(Integer pair) {
    const Integer type = waveType(pair);
    const auto raiseIfSelected = [&](const Route& route, Integer channel, Polarity polarity) {
        if (!widgets_[route.option].value()) return;
        Integer wave = type;
        auto input = static_cast<Integer>(polarity);
        host_.WaveForm(channel, wave, input);
    };
    const auto& [signals, upper, lower] = *entry(kPairs, pair);
    const auto first = static_cast<Integer>(2 * pair - 1);
    const auto second = static_cast<Integer>(2 * pair);
    raiseIfSelected(upper.positive, first, Polarity::positive);
    raiseIfSelected(upper.negative, first, Polarity::negative);
    raiseIfSelected(lower.positive, second, Polarity::positive);
    raiseIfSelected(lower.negative, second, Polarity::negative);
}

}  // namespace Orvo
