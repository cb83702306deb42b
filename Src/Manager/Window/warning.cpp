#include "Manager/Window/warning.h"

#include <QMessageBox>

#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Manager {
namespace {

// Paths and reasons on a few lines; left alone it is as narrow as the text above.
constexpr auto kReadable = "#qt_msgbox_informativelabel { min-width: 22em; }";

}  // namespace

void explain(QMessageBox& box, const QString& details) {
    box.setAttribute(Qt::WA_DeleteOnClose);
    box.setInformativeText(Window::onLines(details, box.font()));
    Window::makePlain(box);
    box.setStyleSheet(kReadable);
}

QDialog& showWarning(QWidget& window, const QString& title, const QString& text,
                     const QString& details) {
    auto* box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, &window);
    explain(*box, details);
    box->open();
    return *box;
}

}  // namespace Orvo::Manager
