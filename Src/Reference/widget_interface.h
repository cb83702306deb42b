#pragma once

#include <string>

// The panel as a widget's slots and signals, with the toolkit's types.
namespace Orvo::Script {

/// Src/Orvo/window/panel_interface.h and .cpp.
std::string widgetInterfaceHeader();
std::string widgetInterfaceSource();

}  // namespace Orvo::Script
