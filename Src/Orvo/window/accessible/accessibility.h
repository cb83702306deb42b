#pragma once

#include "Orvo/window/painted/page.h"

// The window as assistive technology knows it. Lamps, readouts and results are painted, so they
// are known to the page alone, which presents them beside its controls.
namespace Orvo::Window {

/// Has the window's widgets known by their own roles and values. The toolkit remembers what it has
/// made of a widget, so this comes before the first of them.
void installAccessibility();

/// Says that a painted widget may have changed, if anybody listens.
void announce(Page& page, WidgetId painted);

}  // namespace Orvo::Window
