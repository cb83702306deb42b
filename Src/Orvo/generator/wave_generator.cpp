#include "Orvo/generator/wave_generator.h"

#include <cstddef>

#include "Orvo/layout/roles.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr Colour kHighlight = rgb(255, 255, 255);
constexpr Colour kDim = rgb(100, 100, 100);
constexpr Integer kSegments = 5;
constexpr Integer kLineIn = 4;

void showRoute(WidgetTree& widgets, const Input& input, bool isChosen) {
    for (Integer i = 0; i < kSegments; ++i) {
        widgets[input.segments.at(i)].setColour(isChosen ? kHighlight : kDim);
    }
    widgets[input.selector].setVisible(isChosen);
}

void showOutput(WidgetTree& widgets, const Channel& channel, bool isChosen) {
    widgets[channel.output].setColour(isChosen ? kHighlight : kDim);
}

}  // namespace

void WaveGenerator::route(Integer channel, Polarity polarity) {
    const std::size_t first = channel <= 2 ? 0 : 2;
    const Channel& upper = kChannels[first];
    const Channel& lower = kChannels[first + 1];
    const bool isUpper = channel % 2 == 1;
    const bool isPositive = polarity == Polarity::positive;
    showRoute(widgets_, upper.negative, isUpper && !isPositive);
    showRoute(widgets_, upper.positive, isUpper && isPositive);
    showOutput(widgets_, upper, isUpper);
    showRoute(widgets_, lower.positive, !isUpper && isPositive);
    showRoute(widgets_, lower.negative, !isUpper && !isPositive);
    showOutput(widgets_, lower, !isUpper);
}

Integer WaveGenerator::waveType(Integer pair) const {
    const auto& waves = entry(kPairs, pair)->waves;
    if (widgets_[waves[kLineIn]].value()) return kLineIn;
    Integer type = 0;
    for (Integer i = 0; i < kLineIn; ++i) {
        if (widgets_[waves[static_cast<std::size_t>(i)]].value()) type = i;
    }
    return type;
}

void WaveGenerator::start(Integer pair) {
    const Integer type = waveType(pair);
    const auto raiseIfSelected = [&](const Input& its, Integer channel, Polarity polarity) {
        if (!widgets_[its.option].value()) return;
        Integer wave = type;
        auto input = static_cast<Integer>(polarity);
        host_.WaveForm(channel, wave, input);
    };
    for (const int number : {2 * pair - 1, 2 * pair}) {
        const Channel& channel = *entry(kChannels, number);
        raiseIfSelected(channel.positive, static_cast<Integer>(number), Polarity::positive);
        raiseIfSelected(channel.negative, static_cast<Integer>(number), Polarity::negative);
    }
}

}  // namespace Orvo
