#include "Orvo/window/prompt_dialog.h"

#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

namespace {

// Besides accepted and rejected.
constexpr int kWithdrawn = 2;

}  // namespace

std::optional<String> PromptDialog::ask(const Widgets::Question& question) {
    if (!panel_.isVisible()) throw Widgets::PromptWithdrawn{};
    const QPointer<QInputDialog> dialog = new QInputDialog(&panel_);
    const bool isHidden = question.echo == Widgets::Echo::hidden;
    dialog->setWindowTitle(question.title.empty() ? "Marvane Assistant" : toQt(question.title));
    dialog->setLabelText(toQt(question.text));
    dialog->setTextEchoMode(isHidden ? QLineEdit::Password : QLineEdit::Normal);
    open_ = dialog;
    const int result = dialog->exec();
    if (!dialog) throw Widgets::PromptWithdrawn{};
    const String answer = fromQt(dialog->textValue());
    delete dialog;
    if (result == kWithdrawn) throw Widgets::PromptWithdrawn{};
    return result == QDialog::Accepted ? std::optional(answer) : std::nullopt;
}

void PromptDialog::withdraw() {
    if (open_) open_->done(kWithdrawn);
}

}  // namespace Orvo::Window
