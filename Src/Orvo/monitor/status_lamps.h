#pragma once

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
    void setSignal(Integer channel, Boolean value);
    void setClock(Integer pair, Boolean value);
    void setReady(Integer pair, Boolean value);

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
