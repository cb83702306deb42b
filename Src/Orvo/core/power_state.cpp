#include "Orvo/core/power_state.h"

#include <array>

#include "Orvo/layout/layout.h"
#include "Orvo/widgets/lamp.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr ShapeRef kLinkLamp = shapeRef("shpConnected");
constexpr std::array kLinkTexts{labelRef("lblConnected12"), labelRef("lblConnected34")};
constexpr ShapeRef kPowerLamp = shapeRef("shpOnOff");
constexpr std::array kPowerChecks{checkRef("chkOnOff12"), checkRef("chkOnOff34")};
constexpr std::array kMainsLamps{shapeRef("shpMainPresence12"), shapeRef("shpMainPresence34")};

constexpr Colour kConnectedText = rgb(0, 200, 0);
constexpr Colour kDisconnectedText = rgb(250, 0, 0);

}  // namespace

void PowerState::setConnected(Boolean value) {
    light(widgets_[kLinkLamp], value);
    for (const LabelRef text : kLinkTexts) {
        widgets_[text].setCaption(bool(value) ? u"Connected" : u"Disconnected");
        widgets_[text].setColour(bool(value) ? kConnectedText : kDisconnectedText);
    }
}

void PowerState::setPower(Boolean value) {
    light(widgets_[kPowerLamp], value);
    for (const CheckRef check : kPowerChecks) {
        widgets_[check].setValue(bool(value) ? CheckValue::checked : CheckValue::unchecked);
    }
}

Boolean PowerState::power() const { return isLit(widgets_[kPowerLamp]); }

void PowerState::setMains(Boolean value) {
    for (const ShapeRef lamp : kMainsLamps) light(widgets_[lamp], value);
}

void PowerState::enableSecondPair(Boolean value) {
    widgets_[kTabs].setTabEnabled(kSecondPairTab, value);
}

}  // namespace Orvo
