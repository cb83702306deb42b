#pragma once

#include <QString>

class QDialog;
class QWidget;

namespace Orvo::Manager {

/// Tells a person that something could not be done. Everything goes on meanwhile.
QDialog& showWarning(QWidget& window, const QString& title, const QString& text,
                     const QString& details);

}  // namespace Orvo::Manager
