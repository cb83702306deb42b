#pragma once

#include "Orvo/store/store.h"

class QWidget;

namespace Orvo::Window {

/// Gives a control what its looks don't say and what never changes: a name for screen readers and
/// a shortcut.
void describeTo(QWidget& control, Widgets::WidgetId id);

/// Brings what it says now to its tooltip and to screen readers.
void tellValueTo(QWidget& control, const Runtime::Store& store, Widgets::WidgetId id);

}  // namespace Orvo::Window
