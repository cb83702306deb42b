#include "Orvo/core/power_state.h"

#include "Orvo/layout/roles.h"
#include "Orvo/widgets/lamp.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr Colour kConnectedText = rgb(0, 200, 0);
constexpr Colour kDisconnectedText = rgb(250, 0, 0);

}  // namespace

void PowerState::setConnected(Boolean value) {
    light(widgets_[kCommon.linkLamp], value);
    for (const Pair& pair : kPairs) {
        widgets_[pair.linkText].setCaption(bool(value) ? u"Connected" : u"Disconnected");
        widgets_[pair.linkText].setColour(bool(value) ? kConnectedText : kDisconnectedText);
    }
}

void PowerState::setPower(Boolean value) {
    light(widgets_[kCommon.powerLamp], value);
    for (const Pair& pair : kPairs) {
        widgets_[pair.powerCheck].setValue(bool(value) ? CheckValue::checked
                                                       : CheckValue::unchecked);
    }
}

Boolean PowerState::power() const { return isLit(widgets_[kCommon.powerLamp]); }

void PowerState::setMains(Boolean value) {
    for (const Pair& pair : kPairs) light(widgets_[pair.mainsLamp], value);
}

void PowerState::enableSecondPair(Boolean value) {
    widgets_[kTabs].setTabEnabled(kSecondPairTab, value);
}

}  // namespace Orvo
