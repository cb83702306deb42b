#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// Which channels are muted: each channel's lamp is its state. The amplifier-wide lamp sums up the
/// channels that the amplifier has, which are all four while the second pair's tab is enabled.
class MuteState {
public:
    explicit MuteState(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    /// Channel 1 to 4, or 0 for all lamps; any other index sets none, but sums up.
    void set(Integer channel, Boolean value);
    [[nodiscard]] Boolean get(Integer channel) const;

private:
    void summarise();

    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
