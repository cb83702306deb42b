#include "Orvo/monitor/status_lamps.h"

#include "Orvo/values/indexed.h"
#include "Orvo/widgets/lamp.h"

namespace Orvo {

using namespace Layout;

void StatusLamps::setProtection(Integer channel, Boolean value) {
    if (channel == 0) return light(widgets_[kCommon.protectionLamp], value);
    setChannel(&Channel::protectionLamp, channel, value);
}

void StatusLamps::setChannel(Widgets::ShapeRef Channel::*lamp, Integer channel, Boolean value) {
    if (const auto* found = entry(kChannels, channel)) light(widgets_[found->*lamp], value);
}

void StatusLamps::setPair(Widgets::ShapeRef Pair::*lamp, Integer pair, Boolean value) {
    if (const auto* found = entry(kPairs, pair)) light(widgets_[found->*lamp], value);
}

}  // namespace Orvo
