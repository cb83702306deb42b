#include "Manager/Window/status_line.h"

#include <utility>

#include <QHBoxLayout>

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kMessageStays = 8s;

// Readable in a dark and in a light desktop.
constexpr auto kWarning =
    "QLabel { background: #ffcc33; color: black; font-weight: bold; border-radius: 3px; }";

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
    lastWord_->setStyleSheet(text.isStale ? kWarning : "");
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

void StatusLine::unsay(const QString& message) {
    if (message_->text() == message) message_->setFullText({});
}

}  // namespace Orvo::Manager
