#pragma once

#include "Orvo/layout/roles.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The message log: lines that the host writes, kept by the list alone.
class MessageLog {
public:
    explicit MessageLog(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    void add(const String& line) { widgets_[Layout::kCommon.log].addItem(line); }
    void clear() { widgets_[Layout::kCommon.log].clear(); }

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
