#include "Manager/Window/warning.h"

#include <QMessageBox>

namespace Orvo::Manager {
namespace {

// Paths and reasons on a few lines; left alone it is as narrow as the text above.
constexpr auto kReadable = "#qt_msgbox_informativelabel { min-width: 22em; }";

}  // namespace

QDialog& showWarning(QWidget& window, const QString& title, const QString& text,
                     const QString& details) {
    auto* box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(details);
    box->setStyleSheet(kReadable);
    box->open();
    return *box;
}

}  // namespace Orvo::Manager
