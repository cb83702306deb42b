#pragma once

#include <QStringList>

#include "Orvo/layout/style.h"

namespace Orvo::Window {

/// The families to show a face in: the layout's own, then the nearest one that the library brings
/// along.
QStringList familiesOf(Layout::Face face);

/// Loads what the library brings along for faces that are not installed. The application has to
/// exist; to call it again does nothing.
void provideFonts();

}  // namespace Orvo::Window
