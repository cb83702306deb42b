#include "Orvo/core/read_only_mode.h"

#include <tuple>

#include "Orvo/layout/roles.h"

namespace Orvo {
namespace {

using namespace Layout;

// In the order in which they are written. The second pair's sliders come last: whoever may only
// watch can move no slider at all.
// clang-format off
constexpr std::tuple kInputs{
    pair(1).waves[2],         pair(2).waves[2],
    pair(1).waves[1],         pair(2).waves[1],
    pair(1).waves[0],         pair(2).waves[0],
    pair(1).waves[3],         pair(2).waves[3],
    pair(1).waves[4],         pair(2).waves[4],
    pair(1).startButton,        pair(2).startButton,
    channel(1).positive.option, channel(2).positive.option,
    channel(1).negative.option, channel(2).negative.option,
    channel(3).positive.option, channel(4).positive.option,
    channel(3).negative.option, channel(4).negative.option,
    kCommon.powerButton,
    channel(1).volumeSlider,    channel(2).volumeSlider,    pair(1).testSlider,
    kCommon.resetLogButton,     channel(2).muteButton,      channel(1).muteButton,
    channel(3).muteButton,      kCommon.muteButton,         channel(4).muteButton,
    kCommon.serialPorts,
    pair(1).powerCheck,         pair(2).powerCheck,
    channel(3).volumeSlider,    channel(4).volumeSlider,    pair(2).testSlider,
};
// clang-format on

}  // namespace

void ReadOnlyMode::set(Boolean value) {
    blnReadOnly = value;
    const Boolean enabled = ~value;
    std::apply([&](auto... inputs) { (widgets_[inputs].setEnabled(enabled), ...); }, kInputs);
}

}  // namespace Orvo
