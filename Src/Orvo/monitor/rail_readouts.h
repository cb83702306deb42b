#pragma once

#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/indexed.h"
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
    void set(Rail rail, Integer pair, Integer volts) {
        const auto* found = entry(Layout::kPairs, pair);
        if (found != nullptr) showNumber(widgets_, found->*rail, volts);
    }

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
