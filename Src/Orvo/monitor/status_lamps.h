#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/runtime.h"

namespace Orvo {

/// The lamps that show one flag each: protection and signal presence of a channel, clock and ready
/// of a pair. An index without a lamp is passed over.
class StatusLamps {
public:
    explicit StatusLamps(Widgets::Runtime& widgets) : widgets_(widgets) {}

    /// Channel 1 to 4, or 0 for the whole amplifier.
    void setProtection(Integer channel, Boolean value);
    void setSignal(Integer channel, Boolean value);
    void setClock(Integer pair, Boolean value);
    void setReady(Integer pair, Boolean value);

private:
    Widgets::Runtime& widgets_;
};

}  // namespace Orvo
