#pragma once

#include <QPalette>

#include "Orvo/window/drawing/palette.h"

// The colours of all that stands around the panel: menus, status, docks, dialogs, tooltips.
namespace Orvo::Manager {

enum class Frame { dark, light };
enum class Contrast { usual, high };

// What a person must not overlook, on whatever frame.
constexpr QColor kWarningGround = Window::Palette::kWarning;
constexpr QColor kWarningText(0, 0, 0);

/// The same as a style sheet of one widget's.
QString warningLook();

QPalette framePalette(Frame frame, Contrast contrast);

/// What the desktop asks for by its own colours.
Contrast contrastOf(const QPalette& desktop);

/// Gives all of the program's windows the frame, in the contrast that the desktop has now. The
/// panel has colours of its own.
void paintFrame(Frame frame);

}  // namespace Orvo::Manager
