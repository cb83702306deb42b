#include "Orvo/monitor/volume.h"

#include <array>

#include "Orvo/layout/layout.h"
#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

struct Channel {
    std::array<DigitRef, 2> digits;
    LabelRef sign;
    SliderRef slider;
};

constexpr std::array<Channel, 4> kChannels{{
    {{digitRef("LED20"), digitRef("LED19")}, labelRef("Label76"), sliderRef("ZelvinSlider1")},
    {{digitRef("LED18"), digitRef("LED17")}, labelRef("Label30"), sliderRef("ZelvinSlider2")},
    {{digitRef("LED9"), digitRef("LED10")}, labelRef("Label29"), sliderRef("ZelvinSlider4")},
    {{digitRef("LED11"), digitRef("LED12")}, labelRef("Label10"), sliderRef("ZelvinSlider5")},
}};

}  // namespace

Integer sliderPosition(Integer volume) {
    const Integer even = volume % 2 == 0 ? volume : toInteger(volume + 1);
    return static_cast<Integer>(toInteger(30 - even) / 2);
}

Integer volumeAt(Integer position) { return toInteger(2L * toInteger(15 - position)); }

void Volume::show(Integer channel, Integer volume) {
    const String text = paddedText(toInteger(volume < 0 ? -volume : volume), 2);
    const Channel* block = entry(kChannels, channel);
    if (block == nullptr) return;
    showDigits(widgets_, block->digits, text);
    widgets_[block->sign].setCaption(volume == 0 ? u"" : u"-");
}

void Volume::moveSlider(Integer channel, Integer volume) {
    const Integer position = sliderPosition(volume);
    const Channel* block = entry(kChannels, channel);
    if (block != nullptr) widgets_[block->slider].setPosition(position);
}

Boolean Volume::isHeld(Integer channel) const {
    const Channel* block = entry(kChannels, channel);
    return block != nullptr ? widgets_[block->slider].buttonDown() : Boolean(false);
}

void Volume::sliderMoved(Integer channel) {
    Integer volume = volumeAt(widgets_[entry(kChannels, channel)->slider].position());
    host_.VolumeChange(channel, volume);
}

}  // namespace Orvo
