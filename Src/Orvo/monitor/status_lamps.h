#pragma once

#include "Orvo/layout/roles.h"
#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The lamps that show one flag each: protection and signal presence of a channel, clock and ready
/// of a pair. An index without a lamp is passed over.
class StatusLamps {
public:
    explicit StatusLamps(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    /// Channel 1 to 4, or 0 for the whole amplifier.
    void setProtection(Integer channel, Boolean value);
    void setChannel(Widgets::ShapeRef Layout::Channel::*lamp, Integer channel, Boolean value);
    void setPair(Widgets::ShapeRef Layout::Pair::*lamp, Integer pair, Boolean value);

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
