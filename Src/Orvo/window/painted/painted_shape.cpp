#include <QPainter>
#include <QRadialGradient>

#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

namespace {

constexpr double kGlow = 5;  // pixels around a lit lamp

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

}  // namespace

double PaintedShape::glow() const { return isLamp() ? scale().measure(kGlow) : 0; }

bool PaintedShape::isLamp() const {
    return looks().outline == Layout::Outline::circle && looks().fill != looks().back;
}

QRectF PaintedShape::circle() const {
    const double diameter = qMin(place().width(), place().height());
    QRectF circle(0, 0, diameter, diameter);
    circle.moveCenter(QRectF(place()).center());
    return circle;
}

QRect PaintedShape::bounds() const {
    const int margin = qCeil(glow()) + 1;
    return place().adjusted(-margin, -margin, margin, margin);
}

QRect PaintedShape::ink() const {
    if (looks().outline == Layout::Outline::rectangle) return bounds();
    const double margin = glow() + 1;
    return circle().adjusted(-margin, -margin, margin, margin).toAlignedRect();
}

int PaintedShape::state() const { return int(isLamp() && stored<Runtime::StoredShape>().isLit()); }

void PaintedShape::paintFading(QPainter& painter, double share) const {
    paintState(painter, 0);
    painter.setOpacity(share);
    paint(painter);
    painter.setOpacity(1);
}

void PaintedShape::draw(QPainter& painter, int state) const {
    if (looks().outline == Layout::Outline::rectangle) return drawOutline(painter);
    if (isLamp()) return drawLamp(painter, state == 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQt(looks().border));
    painter.drawEllipse(circle());
}

void PaintedShape::drawOutline(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    const double half = pen() / 2;
    painter.setPen(QPen(withAlpha(toQt(looks().border), 150), pen()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(place()).adjusted(half, half, -half, -half));
}

void PaintedShape::drawLamp(QPainter& painter, bool isLit) const {
    const QColor colour = toQt(isLit ? looks().fill : looks().back);
    const QRectF lamp = circle().adjusted(pen() / 2, pen() / 2, -pen() / 2, -pen() / 2);
    if (isLit) drawGlow(painter);

    painter.setPen(QPen(Palette::kLampRim, pen()));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle().adjusted(-pen() / 2, -pen() / 2, pen() / 2, pen() / 2));

    const double radius = lamp.width() / 2;
    QRadialGradient glass(lamp.center(), radius, lamp.center() - QPointF(radius, radius) * 0.4);
    glass.setColorAt(0, isLit ? colour.lighter(175) : colour.lighter(165));
    glass.setColorAt(isLit ? 0.55 : 0.4, colour);
    glass.setColorAt(1, isLit ? colour.darker(112) : colour.darker(130));
    painter.setPen(QPen(toQt(looks().border), pen()));
    painter.setBrush(glass);
    painter.drawEllipse(lamp);
    if (isLit) drawCore(painter, lamp);
}

// Brighter than any colour, with a dark rim that sets it off from a bright one: who doesn't see the
// colour sees the shape.
void PaintedShape::drawCore(QPainter& painter, const QRectF& lamp) const {
    const double radius = lamp.width() * 0.24;
    painter.setPen(QPen(toQt(looks().fill).darker(400), radius * 0.4));
    painter.setBrush(Palette::kLampCore);
    painter.drawEllipse(lamp.center(), radius, radius);
}

void PaintedShape::drawGlow(QPainter& painter) const {
    const QRectF lamp = circle();
    const double outer = lamp.width() / 2 + glow();
    QRadialGradient halo(lamp.center(), outer);
    halo.setColorAt(lamp.width() / 2 / outer, withAlpha(toQt(looks().fill), 130));
    halo.setColorAt(1, withAlpha(toQt(looks().fill), 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(lamp.center(), outer, outer);
}

}  // namespace Orvo::Window
