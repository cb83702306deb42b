#include "Manager/status_line.h"

#include <QHBoxLayout>

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kMessageStays = 8s;

// What has to fit, less the message.
constexpr auto kWidest =
    "Link down Simulated amplifier (seed 12345678) No word for 59 min 59 s: old values Read-only "
    "100 %";
constexpr int kLabels = 6;

// Readable in a dark and in a light desktop.
constexpr auto kWarning =
    "QLabel { background: #ffcc33; color: black; font-weight: bold; border-radius: 3px; }";

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 0, 6, 0);
    row->setSpacing(10);
    link_ = addLabel("Link");
    connection_ = addLabel("Connected to");
    lastWord_ = addLabel("Last word from the amplifier");
    message_ = addLabel("Message");
    message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->setStretchFactor(message_, 1);
    readOnly_ = addLabel("Mode");
    readOnly_->setText("Read-only");
    readOnly_->hide();
    zoom_ = addLabel("Zoom");
    setMinimumWidth(fontMetrics().horizontalAdvance(kWidest) + kLabels * row->spacing());
    messageEnds_.setSingleShot(true);
    QObject::connect(&messageEnds_, &QTimer::timeout, message_, &QLabel::clear);
}

QLabel* StatusLine::addLabel(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(2);
    layout()->addWidget(label);
    return label;
}

void StatusLine::showText(const StatusText& text) {
    link_->setText(QString::fromStdString(text.link));
    connection_->setText(QString::fromStdString(text.connection));
    const QString lastWord = QString::fromStdString(text.lastWord);
    lastWord_->setText(text.isStale ? " \u26a0 " + lastWord + " " : lastWord);
    lastWord_->setStyleSheet(text.isStale ? kWarning : "");
}

void StatusLine::say(const QString& message) {
    message_->setText(message);
    message_->setToolTip(message);
    messageEnds_.start(kMessageStays);
}

}  // namespace Orvo::Manager
