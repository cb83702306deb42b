#include "Orvo/monitor/rail_readouts.h"

#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/indexed.h"

namespace Orvo {

void RailReadouts::set(Rail rail, Integer pair, Integer volts) {
    const Layout::Pair* found = entry(Layout::kPairs, pair);
    if (found != nullptr) showNumber(widgets_, found->*rail, volts);
}

}  // namespace Orvo
