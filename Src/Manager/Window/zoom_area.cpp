#include "Manager/Window/zoom_area.h"

#include <algorithm>

#include <QScrollBar>
#include <QWheelEvent>

#include "Orvo/window/drawing/scale.h"

namespace Orvo::Manager {
namespace {

constexpr auto kStops =
    std::to_array({kSmallestZoom, 75, kPlainZoom, 125, 150, 200, 300, 400, 600, kLargestZoom});

QSize sizeAt(int percent) { return Window::Scale(percent / 100.0).panelSize(); }

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
    setMinimumSize(sizeAt(kSmallestZoom));
    setWidget(&panel);
    // It paints what is around it.
    panel.setAutoFillBackground(false);
    panel.setFitsToSize(true);
}

int ZoomArea::zoom() const { return qRound(panel_.zoom() * 100); }

std::optional<int> ZoomArea::chosenZoom() const {
    return panel_.fitsToSize() ? std::nullopt : std::optional(zoom());
}

void ZoomArea::choose(std::optional<int> percent) {
    panel_.setFitsToSize(!percent);
    percent ? panel_.setZoom(*percent / 100.0) : panel_.resize(maximumViewportSize());
    updateGeometry();
}

void ZoomArea::suit(const QSize& room) {
    const auto isTooLarge = [&](int percent) {
        const QSize size = sizeAt(percent) * 3 / 2;
        return size.width() > room.width() || size.height() > room.height();
    };
    const auto* first = std::ranges::find(kPresets, kPlainZoom);
    const auto* next = std::find_if(first + 1, kPresets.end(), isTooLarge);
    panel_.setZoom(*std::prev(next) / 100.0);
    updateGeometry();
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

void ZoomArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    veil_->fill(viewport()->geometry());
}

void ZoomArea::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QScrollArea::wheelEvent(event);
    wheel_ += event->angleDelta().y();
    for (; wheel_ >= QWheelEvent::DefaultDeltasPerStep; wheel_ -= QWheelEvent::DefaultDeltasPerStep)
        zoomIn();
    for (; wheel_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheel_ += QWheelEvent::DefaultDeltasPerStep)
        zoomOut();
}

}  // namespace Orvo::Manager
