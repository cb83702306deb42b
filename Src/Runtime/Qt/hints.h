#pragma once

#include "Orvo/widgets/reference.h"

class QWidget;

namespace Orvo::Window {

/// Gives a control what its looks don't say: a name for screen readers, a tooltip and a shortcut.
void describeTo(QWidget& control, Widgets::WidgetId id);

}  // namespace Orvo::Window
