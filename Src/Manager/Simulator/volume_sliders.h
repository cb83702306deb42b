#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "Orvo/core/interface.h"

namespace Orvo::Simulator {

/// When a volume slider is moved to where the amplifier says that it belongs.
///
/// Not while a person holds it, which would tear it from their hand, and not while the amplifier
/// has yet to answer a later move: the answers to a quick series of moves would pull it back to
/// where it was.
class VolumeSliders {
public:
    explicit VolumeSliders(MarvaneAssistantInterface& panel) : panel_(panel) {}

    /// A person moved a slider to where this volume is.
    void moved(Integer channel, Integer volume);
    /// The amplifier was asked for it by the request of this number.
    void asked(Integer channel, std::uint32_t request);
    /// The amplifier's volume, after it has answered all requests up to this number.
    void confirmed(Integer channel, Integer volume, std::uint32_t answered);
    /// No request will be answered any more.
    void giveUp();
    /// The amplifier is another one, or the panel may show anything.
    void forgetAll();

    /// Moves what may be moved; to be called again and again, as a slider is let go without word.
    void settle();

private:
    struct Slider {
        std::optional<Integer> shown;
        std::optional<Integer> confirmed;
        std::optional<std::uint32_t> awaited;
    };

    static constexpr int kChannels = 4;

    Slider* slider(Integer channel);
    void settle(Integer channel, Slider& slider);

    MarvaneAssistantInterface& panel_;
    std::array<Slider, kChannels> sliders_;
};

}  // namespace Orvo::Simulator
