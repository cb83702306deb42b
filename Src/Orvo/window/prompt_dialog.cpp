#include "Orvo/window/prompt_dialog.h"

#include <algorithm>

#include <QAbstractButton>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QInputDialog>
#include <QLabel>
#include <QPointer>
#include <QScreen>

#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/panel_screen.h"

namespace Orvo::Window {

namespace {

// Besides accepted and rejected.
constexpr int kWithdrawn = 2;

// Room for a dialog in the desktop's own font.
constexpr QSizeF kSmallestRoom(640, 480);

// As the panel, but never larger than the screen has room for.
QFont fontFor(const PanelScreen& panel, QFont font) {
    const QSizeF room = panel.screen()->availableSize();
    const double most =
        std::min(room.width() / kSmallestRoom.width(), room.height() / kSmallestRoom.height());
    const double zoom = std::max(1.0, std::min(panel.zoom(), most));
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * zoom));
    return font;
}

// The desktop cuts a title for which its bar has no room beside the buttons.
int widthFor(const QInputDialog& dialog, const QString& title) {
    QFont font = QInputDialog().font();
    font.setBold(true);
    const QFontMetrics metrics(font);
    const int wanted = metrics.horizontalAdvance(title) + 10 * metrics.height();
    return std::min(std::max(wanted, dialog.sizeHint().width()),
                    dialog.screen()->availableSize().width() * 9 / 10);
}

// The icon beside what is asked, and what the style has in pixels grown with the font.
void arrange(QInputDialog& dialog) {
    const int line = QFontMetrics(dialog.font()).height();
    static_cast<void>(dialog.sizeHint());  // lays it out
    auto& column = dynamic_cast<QBoxLayout&>(*dialog.layout());
    auto* label = dialog.findChild<QLabel*>();
    auto* icon = new QLabel;
    icon->setPixmap(dialog.windowIcon().pixmap(2 * line));
    if (dialog.windowIcon().isNull()) icon->hide();
    auto* row = new QHBoxLayout;
    column.removeWidget(label);
    row->addWidget(icon);
    row->addWidget(label, 1);
    column.insertLayout(0, row);
    for (QLayout* layout : {&column, static_cast<QBoxLayout*>(row)}) layout->setSpacing(line / 2);
    column.setContentsMargins(QMargins() + line * 2 / 3);
    column.setSizeConstraint(QLayout::SetDefaultConstraint);
    auto* box = dialog.findChild<QDialogButtonBox*>();
    for (auto* button : box->buttons()) button->setMinimumSize(5 * line, line * 8 / 5);
    box->updateGeometry();
}

// The label of a field underlines what stands behind a "&".
void setLabel(QInputDialog& dialog, const String& text) {
    dialog.setLabelText(onLines(text, dialog.font()).replace('&', "&&"));
    makePlain(dialog);
}

}  // namespace

std::optional<String> PromptDialog::ask(const Widgets::Question& question) {
    if (!panel_.isVisible()) throw Widgets::PromptWithdrawn{};
    const QPointer<QInputDialog> dialog = new QInputDialog(&panel_);
    const bool isHidden = question.echo == Widgets::Echo::hidden;
    dialog->setFont(fontFor(panel_, dialog->font()));
    const QString title = question.title.empty() ? "Marvane Assistant" : asTitle(question.title);
    dialog->setWindowTitle(title);
    setLabel(*dialog, question.text);
    arrange(*dialog);
    dialog->setMinimumWidth(widthFor(*dialog, title));
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
