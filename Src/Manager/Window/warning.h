#pragma once

#include <QString>

class QWidget;

namespace Orvo::Manager {

/// Tells a person that something could not be done. Everything goes on meanwhile.
void showWarning(QWidget& window, const QString& title, const QString& text,
                 const QString& details);

}  // namespace Orvo::Manager
