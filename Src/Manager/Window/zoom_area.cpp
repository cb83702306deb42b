#include "Manager/Window/zoom_area.h"

#include <algorithm>

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include "Manager/Window/zoom.h"

namespace Orvo::Manager {
namespace {

constexpr QRgb kSurround = 0xFF15181D;

}  // namespace

ZoomArea::ZoomArea(Window::PanelWidget& panel, QWidget* parent)
    : QScrollArea(parent), panel_(panel) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(&panel);
    // Not by a palette, which the panel's controls would inherit.
    panel.setAutoFillBackground(false);
}

int ZoomArea::zoom() const { return qRound(panel_.zoom() * 100); }

void ZoomArea::setZoom(int percent) {
    isFitting_ = false;
    panel_.setZoom(std::clamp(percent, kSmallestZoom, kLargestZoom) / 100.0);
    updateGeometry();
}

void ZoomArea::setFitting(bool isFitting) {
    isFitting_ = isFitting;
    fit();
}

QSize ZoomArea::sizeHint() const { return panel_.sizeHint(); }

QSize ZoomArea::bounded(const QSize& window, const QSize& room) const {
    QSize wanted = window;
    if (window.height() > room.height()) wanted.rwidth() += verticalScrollBar()->sizeHint().width();
    if (wanted.width() > room.width()) {
        wanted.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    return wanted.boundedTo(room);
}

void ZoomArea::paintEvent(QPaintEvent* event) {
    QPainter(viewport()).fillRect(event->rect(), QColor(kSurround));
}

void ZoomArea::resizeEvent(QResizeEvent* event) {
    fit();
    QScrollArea::resizeEvent(event);
}

void ZoomArea::fit() {
    if (!isFitting_) return;
    const QSizeF plain = QSizeF(panel_.sizeHint()) / panel_.zoom();
    const double zoom = std::min(width() / plain.width(), height() / plain.height());
    panel_.setZoom(int(zoom * 100) / 100.0);
}

}  // namespace Orvo::Manager
