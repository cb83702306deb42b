#pragma once

#include <QByteArray>

namespace Orvo::Manager {

/// What to ask the toolkit for on a machine with these displays: the display first, and to draw
/// offscreen where it can't be reached. Empty: leave the choice to the toolkit.
QByteArray platformFor(bool hasX, bool hasWayland);

/// To be called before the application object is made, which then goes about it silently. What the
/// person chose stays.
void choosePlatform();

/// Whether anyone can see the windows.
bool hasDisplay();

}  // namespace Orvo::Manager
