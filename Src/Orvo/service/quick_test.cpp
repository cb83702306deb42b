#include "Orvo/service/quick_test.h"

#include "Orvo/layout/roles.h"

namespace Orvo {
namespace {

using namespace Widgets;

constexpr LabelArrayRef kResults = Layout::kCommon.testResults;
constexpr Integer kMeasurements = 5;
constexpr Integer kMains = 5;

constexpr auto kPass = u"PASS";
constexpr auto kFail = u"FAIL";
constexpr Colour kPassText = rgb(0, 0, 255);
constexpr Colour kFailText = rgb(255, 0, 0);
constexpr Colour kClearedText = rgb(255, 255, 128);

}  // namespace

void QuickTest::setPassed(Integer row, Boolean value) {
    Label& result = widgets_[kResults.at(row)];
    result.setCaption(bool(value) ? kPass : kFail);
    result.setColour(bool(value) ? kPassText : kFailText);
}

Boolean QuickTest::hasPassed(Integer row) const {
    return {widgets_[kResults.at(row)].caption() == kPass};
}

void QuickTest::clearMeasurements() {
    for (Integer row = 0; row < kMeasurements; ++row) widgets_[kResults.at(row)].setCaption(u"-");
    for (Integer row = 0; row < kMeasurements; ++row) {
        widgets_[kResults.at(row)].setColour(kClearedText);
    }
}

void QuickTest::clearMains() {
    Label& result = widgets_[kResults.at(kMains)];
    result.setCaption(u"");
    result.setColour(kClearedText);
}

}  // namespace Orvo
