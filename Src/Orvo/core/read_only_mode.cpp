#include "Orvo/core/read_only_mode.h"

#include <tuple>

#include "Orvo/layout/layout.h"

namespace Orvo {
namespace {

using namespace Layout;

// In the order in which they are written. The second pair's sliders come last: whoever may only
// watch can move no slider at all.
// clang-format off
constexpr std::tuple kInputs{
    optionRef("opt10000hz_ch12"), optionRef("opt10000hz_Ch34"),
    optionRef("opt1000hz_ch12"),  optionRef("opt1000hz_Ch34"),
    optionRef("opt100hz_ch12"),   optionRef("opt100hz_Ch34"),
    optionRef("optEIAJ_ch12"),    optionRef("optEIAJ_Ch34"),
    optionRef("optLineIn12"),     optionRef("optLineIn34"),
    buttonRef("cmdGo12"),         buttonRef("cmdGo34"),
    optionRef("optP1"),           optionRef("optP2"),
    optionRef("optN1"),           optionRef("optN2"),
    optionRef("optP3"),           optionRef("optP4"),
    optionRef("optN3"),           optionRef("optN4"),
    buttonRef("cmdOnOff"),
    sliderRef("ZelvinSlider1"),   sliderRef("ZelvinSlider2"),   sliderRef("ZelvinSlider3"),
    buttonRef("Command1"),        buttonRef("Command11"),       buttonRef("Command12"),
    buttonRef("Command14"),       buttonRef("Command17"),       buttonRef("Command18"),
    comboRef("cmbSerialPort"),
    checkRef("chkOnOff12"),       checkRef("chkOnOff34"),
    sliderRef("ZelvinSlider4"),   sliderRef("ZelvinSlider5"),   sliderRef("ZelvinSlider6"),
};
// clang-format on

}  // namespace

void ReadOnlyMode::set(Boolean value) {
    blnReadOnly = value;
    const Boolean enabled = ~value;
    std::apply([&](auto... inputs) { (widgets_[inputs].setEnabled(enabled), ...); }, kInputs);
}

}  // namespace Orvo
