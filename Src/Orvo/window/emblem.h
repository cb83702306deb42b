#pragma once

#include <QIcon>

namespace Orvo::Window {

/// What stands for the panel in a task bar or a window's title. The application has to exist.
QIcon emblem();

}  // namespace Orvo::Window
