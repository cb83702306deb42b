#include "Manager/Host/volume_sliders.h"

#include "Orvo/values/indexed.h"

namespace Orvo::Manager {

void VolumeSliders::moved(Integer channel, Integer volume) {
    if (Slider* one = slider(channel)) one->shown = volume;
}

void VolumeSliders::await(Integer channel, bool isAwaited) {
    if (Slider* one = slider(channel)) one->isAwaited = isAwaited;
}

void VolumeSliders::confirmed(Integer channel, Integer volume) {
    if (Slider* one = slider(channel)) one->confirmed = volume;
}

bool VolumeSliders::isAway(Integer channel) const {
    const Slider* one = entry(sliders_, channel);
    return one != nullptr && one->shown != one->confirmed;
}

void VolumeSliders::forgetAll() { sliders_.fill({}); }

void VolumeSliders::settle() {
    Integer channel = 0;
    for (Slider& one : sliders_) settle(++channel, one);
}

void VolumeSliders::settle(Integer channel, Slider& slider) {
    const bool isInPlace = !slider.confirmed || slider.shown == slider.confirmed;
    if (isInPlace || slider.isAwaited) return;
    if (bool(panel_.VolumeSliderButtonDown(channel))) return;
    if (slider.shown) refused_(channel, *slider.shown, *slider.confirmed);
    panel_.VolumeSlider(channel, *slider.confirmed);
    slider.shown = slider.confirmed;
}

VolumeSliders::Slider* VolumeSliders::slider(Integer channel) {
    const bool exists = channel >= 1 && channel <= kChannels;
    return exists ? &sliders_[static_cast<std::size_t>(channel - 1)] : nullptr;
}

}  // namespace Orvo::Manager
