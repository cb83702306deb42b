#include "Orvo/monitor/volume.h"

#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
using Layout::Channel;
using Layout::kChannels;

Integer sliderPosition(Integer volume) {
    const Integer even = volume % 2 == 0 ? volume : toInteger(volume + 1);
    return static_cast<Integer>(toInteger(30 - even) / 2);
}

Integer volumeAt(Integer position) { return toInteger(2L * toInteger(15 - position)); }

void Volume::show(Integer channel, Integer volume) {
    const Integer magnitude = toInteger(volume < 0 ? -volume : volume);
    const Channel* found = entry(kChannels, channel);
    if (found == nullptr) return;
    showNumber(widgets_, found->volume, magnitude);
    widgets_[*found->volume.sign].setCaption(volume == 0 ? u"" : u"-");
}

void Volume::moveSlider(Integer channel, Integer volume) {
    const Integer position = sliderPosition(volume);
    const Channel* found = entry(kChannels, channel);
    if (found != nullptr) widgets_[found->volumeSlider].setPosition(position);
}

Boolean Volume::isHeld(Integer channel) const {
    const Channel* found = entry(kChannels, channel);
    return found != nullptr ? widgets_[found->volumeSlider].buttonDown() : Boolean(false);
}

void Volume::sliderMoved(Integer channel) {
    Integer volume = volumeAt(widgets_[entry(kChannels, channel)->volumeSlider].position());
    host_.VolumeChange(channel, volume);
}

}  // namespace Orvo
