#include "Orvo/monitor/temperature.h"

#include <array>
#include <cstddef>

#include "Orvo/layout/layout.h"
#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

struct Pair {
    DigitArrayRef digits;
    SliderRef slider;
    TimerRef timer;
};

constexpr std::array<Pair, 2> kPairs{{
    {digitArray("ledTemp12"), sliderRef("ZelvinSlider3"), timerRef("tmrVirtualTemp12")},
    {digitArray("ledTemp34"), sliderRef("ZelvinSlider6"), timerRef("tmrVirtualTemp34")},
}};

}  // namespace

void Temperature::show(Integer pair, Integer degrees) {
    const Pair* widgets = entry(kPairs, pair);
    if (widgets == nullptr) return;
    const std::array digits{widgets->digits.at(0), widgets->digits.at(1), widgets->digits.at(2)};
    showDigits(widgets_, digits, paddedText(degrees, digits.size()));
}

void Temperature::runTimer(Integer pair, Boolean value) {
    widgets_[entry(kPairs, pair)->timer].setEnabled(value);
}

void Temperature::sliderMoved(Integer pair) {
    Integer degrees = testTemperature(pair);
    host_.SetTemp(pair, degrees);
}

void Temperature::timerTicked(Integer pair) {
    Integer degrees = testTemperature(pair);
    if (degrees != 0) host_.SetTemp(pair, degrees);
}

Integer Temperature::testTemperature(Integer pair) const {
    return widgets_[entry(kPairs, pair)->slider].position();
}

}  // namespace Orvo
