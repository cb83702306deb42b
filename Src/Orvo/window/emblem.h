#pragma once

#include <QIcon>

#include "Orvo/export.h"

namespace Orvo::Window {

/// What stands for the panel in a task bar or a window's title. The application has to exist.
ORVO_EXPORT QIcon emblem();

}  // namespace Orvo::Window
