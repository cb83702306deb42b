#pragma once

#include <QString>

#include "Orvo/layout/style.h"

namespace Orvo::Window {

/// The family to show a face in: the layout's own, else the nearest one that the library brings
/// along. The application has to exist; what is installed is looked at once.
QString familyOf(Layout::Face face);

}  // namespace Orvo::Window
