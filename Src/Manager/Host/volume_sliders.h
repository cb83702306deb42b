#pragma once

#include <array>
#include <functional>
#include <optional>
#include <utility>

#include "Orvo/core/interface.h"

namespace Orvo::Manager {

/// When a volume slider is moved to where the amplifier says that it belongs.
///
/// Not while a person holds it, which would tear it from their hand, and not while the amplifier
/// has yet to answer a later move: the answers to a quick series of moves would pull it back to
/// where it was.
class VolumeSliders {
public:
    using Refused = std::function<void(Integer channel, Integer asked, Integer confirmed)>;

    /// `refused` is told when what a person asked for isn't what the amplifier has.
    VolumeSliders(MarvaneAssistantInterface& panel, Refused refused)
        : panel_(panel), refused_(std::move(refused)) {}

    /// A person moved a slider to where this volume is.
    void moved(Integer channel, Integer volume);
    /// The amplifier was asked for it.
    void asked(Integer channel) { await(channel, true); }
    /// The latest request was answered, or never will be.
    void ended(Integer channel) { await(channel, false); }
    /// The amplifier's volume.
    void confirmed(Integer channel, Integer volume);
    /// The amplifier is another one, or the panel may show anything.
    void forgetAll();

    /// Moves what may be moved; to be called again and again, as a slider is let go without word.
    void settle();

    /// Whether a slider is elsewhere than where the amplifier says that it belongs.
    [[nodiscard]] bool isAway(Integer channel) const;

private:
    struct Slider {
        std::optional<Integer> shown;
        std::optional<Integer> confirmed;
        bool isAwaited = false;
    };

    static constexpr int kChannels = 4;

    Slider* slider(Integer channel);
    void await(Integer channel, bool isAwaited);
    void settle(Integer channel, Slider& slider);

    MarvaneAssistantInterface& panel_;
    const Refused refused_;
    std::array<Slider, kChannels> sliders_;
};

}  // namespace Orvo::Manager
