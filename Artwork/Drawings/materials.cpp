#include "Artwork/Drawings/materials.h"

#include <QPainter>

#include "Orvo/window/drawing/text.h"

namespace Orvo::Artwork {

namespace {

constexpr double kRadius = 5 * kPixel;

void drawRounded(QPainter& painter, const QRectF& place, const QPen& pen, const QBrush& brush) {
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawRoundedRect(place, kRadius, kRadius);
}

}  // namespace

void alignToPixels(QPainter& painter) { painter.translate(kPixel / 2, kPixel / 2); }

QLinearGradient groundOf(const Ground& ground, const QRectF& place) {
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, ground.top);
    light.setColorAt(0.35, ground.middle);
    light.setColorAt(1, ground.bottom);
    return light;
}

// The tab in front has the colour of the top, and goes over into it.
void drawGround(QPainter& painter, const QRectF& place, const Ground& ground) {
    painter.fillRect(place.adjusted(-kPixel, -kPixel, 0, 0), groundOf(ground, place));
}

void drawPlate(QPainter& painter, const QRectF& place, const Finish& finish) {
    drawRounded(painter, place.translated(0, kPixel), Qt::NoPen, finish.shadow);
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, finish.top);
    light.setColorAt(1, finish.bottom);
    drawRounded(painter, place, QPen(finish.edge, kPixel), light);
    painter.setPen(QPen(finish.gleam, kPixel));
    const double y = place.top() + kPixel;
    painter.drawLine(QPointF(place.left() + kRadius, y), QPointF(place.right() - kRadius, y));
}

void drawRecess(QPainter& painter, const QRectF& place, QColor fill, QColor edge) {
    drawRounded(painter, place, QPen(edge, kPixel), fill);
    painter.setPen(QPen(QColor(0, 0, 0, 90), kPixel));
    const double y = place.top() + kPixel;
    painter.drawLine(QPointF(place.left() + kRadius, y), QPointF(place.right() - kRadius, y));
}

QPainterPath waveThrough(const QRectF& place, double swing) {
    const double y = place.center().y();
    QPainterPath wave(QPointF(place.left(), y));
    wave.quadTo(place.left() + place.width() / 4, y - swing, place.center().x(), y);
    wave.quadTo(place.right() - place.width() / 4, y + swing, place.right(), y);
    return wave;
}

void drawRecessAround(QPainter& painter, Layout::WidgetId held, QColor edge, QMarginsF margins) {
    const Layout::WidgetId frame = Layout::describe(held).container;
    const auto& style = Layout::describe(frame).style;
    drawRecess(painter, placeOf(frame).marginsAdded(margins), Window::toQt(style.back), edge);
}

}  // namespace Orvo::Artwork
