#include "Orvo/window/prompt_dialog.h"

#include <QInputDialog>
#include <QLabel>
#include <QPointer>

#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

namespace {

// Besides accepted and rejected.
constexpr int kWithdrawn = 2;

// The label of a field underlines what stands behind a "&".
void setLabel(QInputDialog& dialog, const String& text) {
    dialog.setLabelText(onLines(text, dialog.font()).replace('&', "&&"));
    for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

}  // namespace

std::optional<String> PromptDialog::ask(const Widgets::Question& question) {
    if (!panel_.isVisible()) throw Widgets::PromptWithdrawn{};
    const QPointer<QInputDialog> dialog = new QInputDialog(&panel_);
    const bool isHidden = question.echo == Widgets::Echo::hidden;
    dialog->setWindowTitle(question.title.empty() ? "Marvane Assistant" : asTitle(question.title));
    setLabel(*dialog, question.text);
    dialog->setTextEchoMode(isHidden ? QLineEdit::Password : QLineEdit::Normal);
    const int result = dialog->exec();
    if (!dialog) throw Widgets::PromptWithdrawn{};
    const String answer = fromQt(dialog->textValue());
    delete dialog;
    if (result == kWithdrawn) throw Widgets::PromptWithdrawn{};
    return result == QDialog::Accepted ? std::optional(answer) : std::nullopt;
}

void PromptDialog::withdraw() {
    for (QInputDialog* dialog : panel_.findChildren<QInputDialog*>()) dialog->done(kWithdrawn);
}

}  // namespace Orvo::Window
