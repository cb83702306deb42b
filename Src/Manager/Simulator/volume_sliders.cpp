#include "Manager/Simulator/volume_sliders.h"

namespace Orvo::Simulator {

void VolumeSliders::moved(Integer channel, Integer volume) {
    if (Slider* one = slider(channel)) one->shown = volume;
}

void VolumeSliders::asked(Integer channel, std::uint32_t request) {
    if (Slider* one = slider(channel)) one->awaited = request;
}

void VolumeSliders::confirmed(Integer channel, Integer volume, std::uint32_t answered) {
    if (Slider* one = slider(channel)) {
        one->confirmed = volume;
        if (one->awaited && answered >= *one->awaited) one->awaited.reset();
    }
}

void VolumeSliders::giveUp() {
    for (Slider& one : sliders_) one.awaited.reset();
}

void VolumeSliders::forgetAll() { sliders_.fill({}); }

void VolumeSliders::settle() {
    Integer channel = 0;
    for (Slider& one : sliders_) settle(++channel, one);
}

void VolumeSliders::settle(Integer channel, Slider& slider) {
    const bool isInPlace = !slider.confirmed || slider.shown == slider.confirmed;
    if (isInPlace || slider.awaited) return;
    if (bool(panel_.VolumeSliderButtonDown(channel))) return;
    panel_.VolumeSlider(channel, *slider.confirmed);
    slider.shown = slider.confirmed;
}

VolumeSliders::Slider* VolumeSliders::slider(Integer channel) {
    const bool exists = channel >= 1 && channel <= kChannels;
    return exists ? &sliders_[static_cast<std::size_t>(channel - 1)] : nullptr;
}

}  // namespace Orvo::Simulator
