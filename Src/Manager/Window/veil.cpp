#include "Manager/Window/veil.h"

#include <algorithm>

#include <QPaintEvent>
#include <QPainter>

#include "Manager/Window/frame_palette.h"

namespace Orvo::Manager {
namespace {

constexpr int kMargin = 8;
// Shares of the height: where the banner stands, on the panel's headings, and how large its text is
// at least.
constexpr int kTop = 20;
constexpr int kTextHeight = 26;

constexpr QRgb kFog = 0xC2767A80;

}  // namespace

// All of the banner is painted, so that a new text is no change of what lies behind it.
Veil::Veil(QWidget* parent) : QWidget(parent), banner_(new QLabel(this)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    banner_->setObjectName("Veil");
    banner_->setTextFormat(Qt::PlainText);
    banner_->setAlignment(Qt::AlignCenter);
    banner_->setWordWrap(true);
    banner_->setMargin(kMargin);
    banner_->setAutoFillBackground(true);
    banner_->setPalette(QPalette(kWarningText, kWarningGround));
    hide();
}

void Veil::showText(const QString& text) {
    if (text == banner_->text()) return;
    banner_->setText(text);
    placeBanner();
    setVisible(!text.isEmpty());
}

void Veil::fill(const QRect& room) {
    setGeometry(room);
    placeBanner();
}

void Veil::placeBanner() {
    QFont font = this->font();
    font.setBold(true);
    font.setPixelSize(std::max(fontMetrics().height(), height() / kTextHeight));
    banner_->setFont(font);
    const int needed = banner_->fontMetrics().horizontalAdvance(banner_->text()) + 4 * kMargin;
    const int width = std::min(this->width(), needed);
    banner_->setGeometry((this->width() - width) / 2, height() / kTop, width,
                         banner_->heightForWidth(width));
}

void Veil::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), QColor::fromRgba(kFog));
}

}  // namespace Orvo::Manager
