#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "Artwork/Drawings/drawings.h"

// Opaque colours and vertical light only: all that a metafile has.
namespace Orvo::Artwork {

namespace {

constexpr QRectF kPlace(0, 0, 47, 33);
constexpr double kRadius = 3.5;

struct Button {
    QColor top;
    QColor bottom;
    QColor gleam;
    QColor symbol;
    double sunk = 0;
};

constexpr Button kUp{{98, 105, 117}, {62, 68, 78}, {132, 140, 153}, {188, 195, 206}, 0};
constexpr Button kDown{{40, 45, 53}, {58, 64, 74}, {30, 34, 41}, {84, 242, 104}, 0.7};

void drawFace(QPainter& painter, const Button& button) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 24, 31));
    painter.drawRoundedRect(kPlace, kRadius, kRadius);
    const QRectF body = kPlace.adjusted(1, 1, -1, -1);
    painter.setBrush(button.gleam);
    painter.drawRoundedRect(body, kRadius - 1, kRadius - 1);
    const QRectF face = body.adjusted(0, 1, 0, 0);
    QLinearGradient light(face.topLeft(), face.bottomLeft());
    light.setColorAt(0, button.top);
    light.setColorAt(1, button.bottom);
    painter.setBrush(light);
    painter.drawRoundedRect(face, kRadius - 1, kRadius - 1);
}

// A ring open at the top, and a stroke through the opening.
void drawSymbol(QPainter& painter, const Button& button) {
    constexpr double kRing = 7.6;
    constexpr double kOpening = 80;  // degrees
    const QPointF centre = kPlace.center() + QPointF(0, 0.6 + button.sunk);
    const QRectF ring(centre - QPointF(kRing, kRing), centre + QPointF(kRing, kRing));
    QPainterPath symbol;
    symbol.arcMoveTo(ring, 90 + kOpening / 2);
    symbol.arcTo(ring, 90 + kOpening / 2, 360 - kOpening);
    symbol.moveTo(centre - QPointF(0, kRing * 1.15));
    symbol.lineTo(centre - QPointF(0, kRing * 0.2));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(button.symbol, 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(symbol);
}

template <const Button& button>
void draw(QPainter& painter) {
    drawFace(painter, button);
    drawSymbol(painter, button);
}

}  // namespace

constinit const Drawing kPowerUp{kPlace, draw<kUp>};
constinit const Drawing kPowerDown{kPlace, draw<kDown>};

}  // namespace Orvo::Artwork
