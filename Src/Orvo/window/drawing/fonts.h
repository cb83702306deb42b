#pragma once

#include <QString>

#include "Orvo/layout/style.h"

namespace Orvo::Window {

struct Family {
    QString name;
    int stretch = 0;  ///< in percent of its own width; 0 as it is
};

/// The family to show a face in: the layout's own, else the nearest one that the library brings
/// along, set as wide. The application has to exist; what is installed is looked at once.
Family familyOf(Layout::Face face);

}  // namespace Orvo::Window
