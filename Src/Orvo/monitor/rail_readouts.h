#pragma once

#include "Orvo/layout/roles.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// One of a pair's rails: `&Layout::Pair::positivePower`.
using Rail = Layout::Readout Layout::Pair::*;

/// The supply rails of both pairs: three digits each, the magnitude in volts. Signs and units are
/// fixed captions.
class RailReadouts {
public:
    explicit RailReadouts(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    /// Another pair than 1 and 2 is passed over. Error 13 for a negative value.
    void set(Rail rail, Integer pair, Integer volts);

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
