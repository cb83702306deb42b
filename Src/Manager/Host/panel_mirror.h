#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "Orvo/core/interface.h"
#include "Simulator/message.h"

namespace Orvo::Manager {

/// What the panel was last told, so that it is told only what changed.
class PanelMirror {
public:
    /// `shown` is for the first time, or the same once more.
    enum class Effect : std::uint8_t { none, shown, changed };

    explicit PanelMirror(MarvaneAssistantInterface& panel) : panel_(panel) {}

    /// Shows a reading unless the panel shows it already.
    Effect show(const Simulator::Reading& reading);
    /// The same for a frame of a scope.
    void show(const Simulator::ScopeFrame& frame);
    /// Of the last frame of a channel.
    [[nodiscard]] std::optional<double> sampleInterval(Integer channel) const;
    /// Nothing is lit, measured or drawn any more of a second pair that is missing. Its volumes
    /// stay: there is none that means nothing.
    void clearSecondPair();

    /// The next readings of this item are shown even if nothing has changed, as the panel may have
    /// changed by itself.
    void repeat(Simulator::Item item);
    /// The same for whatever there is.
    void repeatAll();
    /// What comes next is another amplifier's.
    void forget();

private:
    struct Shown {
        Integer value = 0;
        bool isToRepeat = false;
    };

    MarvaneAssistantInterface& panel_;
    std::map<std::pair<Simulator::Item, Integer>, Shown> readings_;
    std::map<Integer, Simulator::ScopeFrame> frames_;
};

}  // namespace Orvo::Manager
