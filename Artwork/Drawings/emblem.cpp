#include <array>

#include <QLinearGradient>
#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Artwork/Drawings/materials.h"

namespace Orvo::Artwork {

namespace {

void drawScreen(QPainter& painter, const QRectF& place) {
    painter.setPen(QPen(QColor(108, 118, 136), 1.5));
    painter.setBrush(QColor(6, 10, 8));
    painter.drawRoundedRect(place, 4, 4);
    painter.setPen(QPen(QColor(0, 90, 20), 1));
    painter.drawLine(QPointF(place.left() + 3, place.center().y()),
                     QPointF(place.right() - 3, place.center().y()));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(40, 240, 80), 3.2, Qt::SolidLine, Qt::RoundCap));
    const QRectF inside = place.adjusted(5, 4, -5, -4);
    painter.drawPath(waveThrough(inside, inside.height() * 0.8));
}

// A panel's front in small: a scope above a row of lamps.
void drawEmblem(QPainter& painter) {
    QLinearGradient front(0, 4, 0, 60);
    front.setColorAt(0, {66, 76, 95});
    front.setColorAt(1, {30, 36, 47});
    painter.setPen(QPen(QColor(20, 24, 32), 2));
    painter.setBrush(front);
    painter.drawRoundedRect(QRectF(3, 3, 58, 58), 11, 11);
    drawScreen(painter, {10, 11, 44, 29});
    painter.setPen(QPen(QColor(12, 14, 18), 1));
    const auto lamps =
        std::to_array<QColor>({{40, 240, 80}, {40, 240, 80}, {255, 210, 60}, {240, 50, 40}});
    double x = 15;
    for (const QColor& lamp : lamps) {
        painter.setBrush(lamp);
        painter.drawEllipse(QPointF(x, 50), 4, 4);
        x += 11.4;
    }
}

// Sixteen pixels are too few for anything but whole ones, in the sixteen colours that every
// display has.
void drawToolbox(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    const auto fill = [&](int left, int top, int width, int height, QColor colour) {
        painter.fillRect(left, top, width, height, colour);
    };
    fill(0, 0, 16, 15, {192, 192, 192});
    fill(1, 1, 14, 13, {0, 0, 0});
    fill(2, 2, 12, 11, {128, 128, 128});
    fill(3, 3, 10, 6, {0, 0, 0});
    const auto wave = std::to_array<QPoint>(
        {{3, 6}, {4, 5}, {5, 4}, {6, 4}, {7, 5}, {8, 6}, {9, 7}, {10, 7}, {11, 6}, {12, 5}});
    for (const QPoint& at : wave) fill(at.x(), at.y(), 1, 1, {0, 255, 0});
    fill(3, 10, 2, 2, {0, 255, 0});
    fill(7, 10, 2, 2, {255, 255, 0});
    fill(11, 10, 2, 2, {255, 0, 0});
}

}  // namespace

constinit const Drawing kEmblem{{0, 0, 64, 64}, drawEmblem};
constinit const Drawing kToolbox{{0, 0, 16, 15}, drawToolbox};

}  // namespace Orvo::Artwork
