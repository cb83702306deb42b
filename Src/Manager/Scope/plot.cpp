#include "Manager/Scope/plot.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "Manager/Scope/plot_painting.h"
#include "Manager/Scope/plot_palette.h"
#include "Orvo/window/drawing/palette.h"

namespace Orvo::Manager {
namespace {

constexpr double kReach = 7;  // pixels, within which a cursor is taken hold of
constexpr int kTextsInHeight = 34;
constexpr int kSmallestText = 11;
constexpr int kLargestText = 18;

double stepOf(Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::ShiftModifier)) return 1;
    return modifiers.testFlag(Qt::ControlModifier) ? 0.01 : 0.1;
}

}  // namespace

Plot::Plot(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Traces"));
}

void Plot::show(const PlotView& view) {
    view_ = view;
    update();
}

PlotGeometry Plot::places() const {
    return {QRectF(rect()).marginsRemoved(marginsOf(font())), view_};
}

void Plot::resizeEvent(QResizeEvent*) {
    QFont font = this->font();
    font.setPixelSize(std::clamp(height() / kTextsInHeight, kSmallestText, kLargestText));
    setFont(font);
}

void Plot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), PlotPalette::kGround);
    const PlotGeometry geometry = places();
    PlotPainting(painter, view_, geometry).paint();
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Window::Palette::kFocus, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

std::optional<Plot::Handle> Plot::handleAt(const QPointF& place) const {
    const PlotGeometry geometry = places();
    const std::size_t lane = view_.laneOf(view_.source);
    const Cursors& cursors = view_.cursors;
    for (const std::size_t i : {cursors.active, 1 - cursors.active}) {
        const double across = std::abs(geometry.x(cursors.shares[i]) - place.x());
        const double down = std::abs(geometry.y(lane, cursors.volts[i]) - place.y());
        if (cursors.hasTime && across < kReach) return Handle{Qt::Horizontal, i};
        if (cursors.hasVolts && down < kReach) return Handle{Qt::Vertical, i};
    }
    return std::nullopt;
}

void Plot::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    held_ = handleAt(event->position());
    if (held_) drag(event->position());
}

void Plot::mouseMoveEvent(QMouseEvent* event) {
    if (held_) return drag(event->position());
    const auto handle = handleAt(event->position());
    const bool isAcross = handle && handle->moves == Qt::Horizontal;
    setCursor(!handle ? Qt::ArrowCursor : isAcross ? Qt::SplitHCursor : Qt::SplitVCursor);
}

void Plot::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) held_.reset();
}

void Plot::drag(const QPointF& place) {
    const PlotGeometry geometry = places();
    Cursors cursors = view_.cursors;
    cursors.active = held_->number;
    if (held_->moves == Qt::Horizontal) {
        cursors.shares[held_->number] = geometry.shareAt(place.x());
    } else {
        cursors.volts[held_->number] = geometry.voltsAt(view_.laneOf(view_.source), place.y());
    }
    move(cursors);
}

void Plot::step(Qt::Orientation direction, double divisions) {
    Cursors cursors = view_.cursors;
    const double most = places().mostVolts();
    double& share = cursors.shares[cursors.active];
    double& volts = cursors.volts[cursors.active];
    if (direction == Qt::Horizontal && cursors.hasTime)
        share = std::clamp(share + divisions / kColumns, 0.0, 1.0);
    if (direction == Qt::Vertical && cursors.hasVolts)
        volts = std::clamp(volts + divisions * view_.voltsPerDivision, -most, most);
    move(cursors);
}

void Plot::keyPressEvent(QKeyEvent* event) {
    const double divisions = stepOf(event->modifiers());
    switch (event->key()) {
        case Qt::Key_Left:
            return step(Qt::Horizontal, -divisions);
        case Qt::Key_Right:
            return step(Qt::Horizontal, divisions);
        case Qt::Key_Up:
            return step(Qt::Vertical, divisions);
        case Qt::Key_Down:
            return step(Qt::Vertical, -divisions);
        case Qt::Key_Space: {
            Cursors cursors = view_.cursors;
            cursors.active = 1 - cursors.active;
            return move(cursors);
        }
        default:
            QWidget::keyPressEvent(event);
    }
}

void Plot::move(const Cursors& cursors) {
    view_.cursors = cursors;
    update();
    emit cursorsMoved(cursors);
}

}  // namespace Orvo::Manager
