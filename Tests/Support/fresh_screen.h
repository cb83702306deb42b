#pragma once

#include <string>

#include "Orvo/window/panel_widget.h"

namespace Orvo::Tests {

/// In what the tab in front differs from what a fresh window on the same store makes of it; empty
/// when they are alike. What only a person at a window leaves there, such as the focus, is taken
/// away before.
std::string differenceFromFresh(Window::PanelWidget& widget);

}  // namespace Orvo::Tests
