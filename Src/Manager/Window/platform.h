#pragma once

#include <QByteArray>

namespace Orvo::Manager {

/// What to ask the toolkit for, in that order, on a machine with these displays: offscreen where
/// none can be reached. `desktop` as `XDG_CURRENT_DESKTOP` has it.
QByteArray platformFor(bool hasX, bool hasWayland, const QByteArray& desktop);

/// To be called before the application object is made, which then goes about it silently. What the
/// person chose stays.
void choosePlatform();

/// Whether anyone can see the windows.
bool hasDisplay();

}  // namespace Orvo::Manager
