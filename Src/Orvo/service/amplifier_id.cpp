#include "Orvo/service/amplifier_id.h"

#include "Orvo/layout/roles.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/text.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr Integer kHighestId = 99;
constexpr Integer kCarriageReturn = 13;

}  // namespace

void AmplifierId::fillList() {
    for (Integer id = 1; id <= kHighestId; ++id)
        widgets_[kCommon.amplifierIds].addItem(decimalText(id));
}

void AmplifierId::takeShownId() {
    intIdDevice = roundToInteger(numericValue(widgets_[kCommon.amplifierIds].text()));
}

void AmplifierId::set(Integer id) {
    intIdDevice = id;
    widgets_[kCommon.amplifierIds].setText(decimalText(id));
}

void AmplifierId::picked() {
    const double shown = numericValue(widgets_[kCommon.amplifierIds].text());
    if (shown == intIdDevice) return;
    intIdDevice = roundToInteger(shown);
    for (const Pair& pair : kPairs) widgets_[pair.amplifierId].setCaption(decimalText(intIdDevice));
    log_.clear();
    Integer id = intIdDevice;
    host_.ChangeAmpId(id);
}

void AmplifierId::keyPressed(Integer& keyCode) {
    if (keyCode != kCarriageReturn) keyCode = 0;
}

}  // namespace Orvo
