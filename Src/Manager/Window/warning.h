#pragma once

#include <QString>

class QDialog;
class QMessageBox;
class QWidget;

namespace Orvo::Manager {

/// Makes a box say these details, plain and bounded, below its text, and end with its closing.
void explain(QMessageBox& box, const QString& details);

/// Tells a person that something could not be done. Everything goes on meanwhile.
QDialog& showWarning(QWidget& window, const QString& title, const QString& text,
                     const QString& details);

}  // namespace Orvo::Manager
