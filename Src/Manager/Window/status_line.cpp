#include "Manager/Window/status_line.h"

#include <utility>

#include <QHBoxLayout>

#include "Manager/Window/frame_palette.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kMessageStays = 8s;

}  // namespace

template <class Label>
Label* StatusLine::add(const QString& name) {
    auto* label = new Label;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(2);
    layout()->addWidget(label);
    return label;
}

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 0, 6, 0);
    row->setSpacing(10);
    link_ = add<AlertLabel>("Link");
    connection_ = add<ElidedLabel>("Connected to");
    lastWord_ = add<AlertLabel>("Last word from the amplifier");
    message_ = add<ElidedLabel>("Message");
    row->setStretchFactor(message_, 1);
    mode_ = add<ElidedLabel>("Mode");
    mode_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    mode_->hide();
    zoom_ = add<QLabel>("Zoom");
    messageEnds_.setSingleShot(true);
    QObject::connect(&messageEnds_, &QTimer::timeout, message_,
                     [this] { message_->setFullText({}); });
}

void StatusLine::showText(const StatusText& text) {
    const QString link = QString::fromStdString(text.link);
    const bool isLinkNews = !link_->text().isEmpty() && link_->text() != link;
    link_->setText(link);
    if (isLinkNews) link_->alert();
    connection_->setFullText(QString::fromStdString(text.connection));
    const QString lastWord = QString::fromStdString(text.lastWord);
    lastWord_->setText(text.isStale ? " \u26a0 " + lastWord + " " : lastWord);
    lastWord_->setStyleSheet(text.isStale ? warningLook() : "");
    if (!std::exchange(isStale_, text.isStale) && isStale_) lastWord_->alert();
}

void StatusLine::showMode(const QString& mode) {
    mode_->setFullText(mode);
    mode_->setVisible(!mode.isEmpty());
}

void StatusLine::say(const QString& message) {
    message_->setFullText(message);
    messageEnds_.start(kMessageStays);
}

}  // namespace Orvo::Manager
