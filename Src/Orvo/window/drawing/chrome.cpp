#include "Orvo/window/drawing/chrome.h"

#include <QLinearGradient>
#include <QPainter>
#include <QWidget>

#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

void drawFace(QPainter& painter, const QRectF& place, QColor colour, Face face, double zoom) {
    const QRectF body = place.adjusted(zoom / 2, zoom / 2, -zoom / 2, -zoom / 2);
    const double radius = qMin(3 * zoom, body.height() / 4);
    QLinearGradient light(body.topLeft(), body.bottomLeft());
    light.setColorAt(0, face == Face::raised ? colour.lighter(110) : colour.darker(128));
    light.setColorAt(1, face == Face::raised ? colour.darker(112) : colour.darker(108));
    painter.setPen(QPen(colour.darker(220), zoom));
    painter.setBrush(light);
    painter.drawRoundedRect(body, radius, radius);
    if (face == Face::sunken) return;
    painter.setPen(QPen(Palette::kFaceGleam, zoom));
    painter.drawLine(body.topLeft() + QPointF(radius, zoom),
                     body.topRight() + QPointF(-radius, zoom));
}

namespace {

// Light and dark, to stand out from any ground.
template <class Draw>
void drawRings(QPainter& painter, const QWidget& widget, double zoom, const Draw& draw) {
    if (!widget.hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](double inset, double width, QColor colour) {
        painter.setPen(QPen(colour, width));
        draw(QRectF(widget.rect()).adjusted(inset, inset, -inset, -inset));
    };
    ring(0.75 * zoom, 1.5 * zoom, Palette::kFocus);
    ring(2 * zoom, zoom, Palette::kFocusInside);
}

}  // namespace

void drawFocus(QPainter& painter, const QWidget& widget, double zoom) {
    drawRings(painter, widget, zoom,
              [&](const QRectF& place) { painter.drawRoundedRect(place, 2 * zoom, 2 * zoom); });
}

void drawRoundFocus(QPainter& painter, const QWidget& widget, double zoom) {
    drawRings(painter, widget, zoom, [&](QRectF place) {
        const double diameter = qMin(place.width(), place.height());
        const QPointF centre = place.center();
        place.setSize({diameter, diameter});
        place.moveCenter(centre);
        painter.drawEllipse(place);
    });
}

}  // namespace Orvo::Window
