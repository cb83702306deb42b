#include "Runtime/Qt/prompt_dialog.h"

#include "Runtime/Qt/text.h"

namespace Orvo::Window {

std::optional<String> PromptDialog::ask(const Widgets::Question& question) {
    const QPointer<QInputDialog> dialog = new QInputDialog(&panel_);
    const bool isHidden = question.echo == Widgets::Echo::hidden;
    dialog->setWindowTitle(question.title.empty() ? "Marvane Assistant" : toQt(question.title));
    dialog->setLabelText(toQt(question.text));
    dialog->setTextEchoMode(isHidden ? QLineEdit::Password : QLineEdit::Normal);
    open_ = dialog;
    const bool isAnswered = dialog->exec() == QDialog::Accepted;
    if (!dialog) return std::nullopt;
    const String answer = fromQt(dialog->textValue());
    delete dialog;
    return isAnswered ? std::optional(answer) : std::nullopt;
}

void PromptDialog::cancel() {
    if (open_) open_->reject();
}

}  // namespace Orvo::Window
