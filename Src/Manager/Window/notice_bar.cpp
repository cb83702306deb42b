#include "Manager/Window/notice_bar.h"

#include <utility>

#include "Manager/Window/frame_palette.h"

namespace Orvo::Manager {

NoticeBar::NoticeBar(Lead lead, QWidget* parent)
    : QToolBar(tr("What goes on"), parent), lead_(std::move(lead)), quiet_(addAction(QString())) {
    setObjectName("Notices");
    setAccessibleName(windowTitle());
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    toggleViewAction()->setVisible(false);
    quiet_->setEnabled(false);
    show(std::nullopt);
}

// Those that are there stay, and with them the keyboard's focus.
void NoticeBar::show(const std::optional<std::vector<Notice>>& notices) {
    if (notices == shown_) return;
    shown_ = notices;
    const std::size_t count = notices ? notices->size() : 0;
    while (buttons_.size() < count) addButton();
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i]->setVisible(i < count);
        if (i < count) fill(*buttons_[i], (*notices)[i]);
    }
    quiet_->setVisible(count == 0);
    quiet_->setText(notices ? tr("All quiet") : tr("Nothing is known of the amplifier"));
}

void NoticeBar::fill(QAction& button, const Notice& notice) {
    const bool isAlarm = notice.kind == Notice::Kind::alarm;
    const QString text = QString::fromStdString(notice.text);
    button.setText(isAlarm ? "\u26a0 " + text : text);
    button.setToolTip(tr("Show %1").arg(text));
    widgetForAction(&button)->setStyleSheet(isAlarm ? warningLook() : "");
}

void NoticeBar::addButton() {
    const std::size_t index = buttons_.size();
    buttons_.push_back(addAction({}, this, [this, index] { lead_(shown_->at(index).about); }));
}

}  // namespace Orvo::Manager
