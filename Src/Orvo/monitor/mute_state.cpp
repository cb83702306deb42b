#include "Orvo/monitor/mute_state.h"

#include <array>
#include <cstddef>
#include <span>

#include "Orvo/layout/roles.h"
#include "Orvo/values/indexed.h"
#include "Orvo/widgets/lamp.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

// By channel from 0, the whole amplifier.
constexpr std::array kLamps{kCommon.muteLamp, channel(1).muteLamp, channel(2).muteLamp,
                            channel(3).muteLamp, channel(4).muteLamp};

// The channels' lamps in the order in which they are gone through, the second pair's first.
constexpr std::array kInOrder{channel(4).muteLamp, channel(3).muteLamp, channel(1).muteLamp,
                              channel(2).muteLamp};

// Reads every lamp, also once the answer is known.
bool allAre(WidgetTree& widgets, std::span<const ShapeRef> lamps, FillStyle style) {
    std::size_t agreeing = 0;
    for (const ShapeRef lamp : lamps) {
        if (widgets[lamp].fillStyle() == style) ++agreeing;
    }
    return agreeing == lamps.size();
}

}  // namespace

void MuteState::set(Integer channel, Boolean value) {
    if (const ShapeRef* lamp = entry(kLamps, channel, 0)) light(widgets_[*lamp], value);
    if (channel == 0) {
        for (const ShapeRef lamp : kInOrder) light(widgets_[lamp], value);
    }
    summarise();
}

Boolean MuteState::get(Integer channel) const {
    const ShapeRef* lamp = entry(kLamps, channel, 0);
    return lamp != nullptr ? isLit(widgets_[*lamp]) : Boolean(false);
}

void MuteState::summarise() {
    const bool hasSecondPair = bool(widgets_[kTabs].tabEnabled(kSecondPairTab));
    const auto counted = std::span(kInOrder).subspan(hasSecondPair ? 0 : 2);
    if (allAre(widgets_, counted, FillStyle::solid)) light(widgets_[kCommon.muteLamp], true);
    if (allAre(widgets_, counted, FillStyle::transparent)) light(widgets_[kCommon.muteLamp], false);
}

}  // namespace Orvo
