#include "Orvo/monitor/rail_readouts.h"

#include <array>
#include <cstddef>

#include "Orvo/layout/layout.h"
#include "Orvo/monitor/digit_readout.h"
#include "Orvo/values/indexed.h"

namespace Orvo {
namespace {

using Layout::digitRef;
using Digits = std::array<Widgets::DigitRef, 3>;

// By rail, then by pair.
constexpr std::array<std::array<Digits, 2>, 4> kRails{{
    {{{digitRef("LED1"), digitRef("LED2"), digitRef("LED25")},
      {digitRef("LED21"), digitRef("LED22"), digitRef("LED29")}}},
    {{{digitRef("LED5"), digitRef("LED6"), digitRef("LED27")},
      {digitRef("LED13"), digitRef("LED14"), digitRef("LED31")}}},
    {{{digitRef("LED3"), digitRef("LED4"), digitRef("LED26")},
      {digitRef("LED23"), digitRef("LED24"), digitRef("LED30")}}},
    {{{digitRef("LED7"), digitRef("LED8"), digitRef("LED28")},
      {digitRef("LED15"), digitRef("LED16"), digitRef("LED32")}}},
}};

}  // namespace

void RailReadouts::set(Rail rail, Integer pair, Integer volts) {
    const Digits* digits = entry(kRails[static_cast<std::size_t>(rail)], pair);
    if (digits != nullptr) showDigits(widgets_, *digits, paddedText(volts, digits->size()));
}

}  // namespace Orvo
