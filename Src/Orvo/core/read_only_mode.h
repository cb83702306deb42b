#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// Keeps a person from changing the amplifier's state: a flag, and the enabled state of the input
/// widgets. The displays follow the host in both modes.
class ReadOnlyMode {
public:
    explicit ReadOnlyMode(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    void set(Boolean value);
    [[nodiscard]] Boolean get() const { return blnReadOnly; }

private:
    Widgets::WidgetTree& widgets_;
    Boolean blnReadOnly;
};

}  // namespace Orvo
