#pragma once

#include "Orvo/core/events.h"
#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// Link, power and mains state, and whether the second pair exists. The power state is what the
/// power lamp shows. The three power controls only ask the host; it answers with `setPower`.
class PowerState {
public:
    PowerState(Widgets::WidgetTree& widgets, MarvaneAssistantEvents& host)
        : widgets_(widgets), host_(host) {}

    void setConnected(Boolean value);
    void setPower(Boolean value);
    [[nodiscard]] Boolean power() const;
    void setMains(Boolean value);
    void enableSecondPair(Boolean value);

    void request() { host_.OnOff(); }

private:
    Widgets::WidgetTree& widgets_;
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
