#pragma once

#include <QString>

#include "Orvo/widgets/reference.h"

namespace Orvo::Window {

/// What a person calls a widget: "Protection channel 1". Tooltips and screen readers say it, and no
/// two widgets of a tab have the same. Empty for what says nothing by itself: decoration, captions,
/// and the digits of a readout but its first, which stands for all of them.
QString nameOf(Widgets::WidgetId id);

/// What a readout and a slider are measured in; empty for everything else.
QString unitOf(Widgets::WidgetId id);

/// Its shortcut, "Alt+P"; empty when it has none.
QString keysOf(Widgets::WidgetId id);

}  // namespace Orvo::Window
