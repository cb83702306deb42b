#include "Orvo/monitor/temperature.h"

#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
using Layout::kPairs;

void Temperature::show(Integer pair, Integer degrees) {
    if (const auto* found = entry(kPairs, pair)) showNumber(widgets_, found->temperature, degrees);
}

void Temperature::runTimer(Integer pair, Boolean value) {
    widgets_[entry(kPairs, pair)->testTimer].setEnabled(value);
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
    return widgets_[entry(kPairs, pair)->testSlider].position();
}

}  // namespace Orvo
