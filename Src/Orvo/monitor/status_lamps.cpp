#include "Orvo/monitor/status_lamps.h"

#include <array>

#include "Orvo/layout/layout.h"
#include "Orvo/values/indexed.h"
#include "Orvo/widgets/lamp.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr std::array kProtectionLamps{shapeRef("Shape28"), shapeRef("Shape18"), shapeRef("Shape21"),
                                      shapeRef("Shape13"), shapeRef("Shape14")};
constexpr std::array kSignalLamps{shapeRef("Shape22"), shapeRef("Shape23"), shapeRef("Shape19"),
                                  shapeRef("Shape24")};
constexpr std::array kClockLamps{shapeRef("Shape6"), shapeRef("Shape4")};
constexpr std::array kReadyLamps{shapeRef("Shape17"), shapeRef("Shape12")};

void lightAny(WidgetTree& widgets, const ShapeRef* lamp, Boolean value) {
    if (lamp != nullptr) light(widgets[*lamp], value);
}

}  // namespace

void StatusLamps::setProtection(Integer channel, Boolean value) {
    lightAny(widgets_, entry(kProtectionLamps, channel, 0), value);
}

void StatusLamps::setSignal(Integer channel, Boolean value) {
    lightAny(widgets_, entry(kSignalLamps, channel), value);
}

void StatusLamps::setClock(Integer pair, Boolean value) {
    lightAny(widgets_, entry(kClockLamps, pair), value);
}

void StatusLamps::setReady(Integer pair, Boolean value) {
    lightAny(widgets_, entry(kReadyLamps, pair), value);
}

}  // namespace Orvo
