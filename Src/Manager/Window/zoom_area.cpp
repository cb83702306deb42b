#include "Manager/Window/zoom_area.h"

#include <algorithm>
#include <array>

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace Orvo::Manager {
namespace {

constexpr QRgb kSurround = 0xFF15181D;

constexpr auto kStops = std::to_array(
    {kSmallestZoom, 75, kPlainZoom, 125, 150, 175, 200, 250, 300, 400, 500, 600, kLargestZoom});

}  // namespace

int nextLarger(int zoom) {
    const auto* next = std::upper_bound(kStops.begin(), kStops.end(), zoom);
    return next == kStops.end() ? kLargestZoom : *next;
}

int nextSmaller(int zoom) {
    const auto* next = std::lower_bound(kStops.begin(), kStops.end(), zoom);
    return next == kStops.begin() ? kSmallestZoom : *std::prev(next);
}

ZoomArea::ZoomArea(Window::PanelWidget& panel, QWidget* parent)
    : QScrollArea(parent), panel_(panel), veil_(new Veil(this)) {
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
    veil_->fill(viewport()->geometry());
}

void ZoomArea::fit() {
    if (!isFitting_) return;
    const QSizeF plain = QSizeF(panel_.sizeHint()) / panel_.zoom();
    const double zoom = std::min(width() / plain.width(), height() / plain.height());
    panel_.setZoom(int(zoom * 100) / 100.0);
}

}  // namespace Orvo::Manager
