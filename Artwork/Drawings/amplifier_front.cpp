#include "Artwork/Drawings/amplifier_front.h"

#include <initializer_list>

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include "Artwork/Drawings/materials.h"

// The light comes from above, and a little from the left.
namespace Orvo::Artwork {

namespace {

constexpr QSizeF kSize(4200, 765);
constexpr double kEar = 190;  // the part of the front on either side that is screwed to the rack
constexpr double kMiddle = kSize.height() / 2;
constexpr QColor kOutline(18, 20, 24);
constexpr QColor kHole(12, 13, 16);
constexpr QColor kPrint(168, 175, 186);

struct Stop {
    double at = 0;
    QColor colour;
};

QBrush shade(QPointF from, QPointF to, std::initializer_list<Stop> stops) {
    QLinearGradient light(from, to);
    for (const Stop& stop : stops) light.setColorAt(stop.at, stop.colour);
    return light;
}

QBrush shadeDown(const QRectF& place, std::initializer_list<Stop> stops) {
    return shade(place.topLeft(), place.bottomLeft(), stops);
}

QBrush shadeAcross(const QRectF& place, std::initializer_list<Stop> stops) {
    return shade(place.topLeft(), place.topRight(), stops);
}

void fill(QPainter& painter, const QRectF& place, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(place, radius, radius);
}

void drawDisc(QPainter& painter, QPointF middle, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(middle, radius, radius);
}

void drawLine(QPainter& painter, QPointF from, QPointF to, QColor colour, double width) {
    painter.setPen(QPen(colour, width));
    painter.drawLine(from, to);
}

void drawBolt(QPainter& painter, QPointF middle) {
    const QRectF slot(middle.x() - 70, middle.y() - 42, 140, 84);
    fill(painter, slot, 42, kHole);
    drawDisc(painter, middle, 38,
             shade(middle - QPointF(20, 38), middle + QPointF(20, 38),
                   {{0, {222, 226, 232}}, {1, {104, 110, 120}}}));
    drawDisc(painter, middle, 16, QColor(52, 56, 63));
}

void drawPlates(QPainter& painter) {
    const QRectF whole(QPointF(), kSize);
    fill(painter, whole.translated(0, 45), 30, QColor(0, 0, 0, 26));
    fill(painter, whole.translated(0, 22), 30, QColor(0, 0, 0, 50));
    fill(painter, whole, 24, kOutline);
    fill(painter, whole.adjusted(10, 10, -10, -10), 18,
         shadeDown(whole, {{0, {92, 98, 109}}, {0.06, {70, 75, 85}}, {1, {46, 50, 58}}}));
    for (const double x : {kEar / 2, kSize.width() - kEar / 2}) {
        for (const double y : {150.0, kSize.height() - 150}) drawBolt(painter, {x, y});
    }
    const QRectF front = whole.adjusted(kEar, 0, -kEar, 0);
    fill(painter, front, 12, kOutline);
    fill(painter, front.adjusted(12, 12, -12, -12), 8,
         shadeDown(front, {{0, {118, 125, 137}},
                           {0.03, {78, 84, 94}},
                           {0.5, {58, 63, 71}},
                           {0.97, {43, 47, 54}},
                           {1, {30, 33, 38}}}));
}

// A round bar on two feet.
void drawHandle(QPainter& painter, double x) {
    const QRectF bar(x - 42, 96, 84, kSize.height() - 192);
    fill(painter, bar.translated(40, 20), 42, QColor(0, 0, 0, 90));
    for (const double y : {bar.top() + 26, bar.bottom() - 26})
        fill(painter, {x - 66, y - 46, 132, 92}, 20,
             shadeDown({0, y - 46, 1, 92}, {{0, {40, 43, 50}}, {1, {20, 22, 26}}}));
    fill(painter, bar, 42,
         shadeAcross(bar, {{0, {88, 93, 102}},
                           {0.3, {244, 246, 249}},
                           {0.55, {176, 182, 191}},
                           {1, {62, 66, 74}}}));
}

// Each slat catches the light on its upper edge.
void drawVent(QPainter& painter, const QRectF& place) {
    constexpr double kPitch = 75;
    fill(painter, place.adjusted(-15, -15, 15, 15), 24, QColor(255, 255, 255, 22));
    fill(painter, place, 20, kHole);
    for (double y = place.top() + 30; y + 45 < place.bottom(); y += kPitch) {
        const QRectF slat(place.left() + 15, y, place.width() - 30, 45);
        fill(painter, slat, 6,
             shadeDown(slat, {{0, {110, 116, 127}}, {0.25, {66, 71, 80}}, {1, {36, 39, 45}}}));
    }
}

// From the bottom: six of green glass, three of amber, one of red.
void drawMeter(QPainter& painter, const QRectF& place) {
    constexpr int kSegments = 10;
    fill(painter, place.adjusted(-12, -12, 12, 12), 20, QColor(255, 255, 255, 28));
    fill(painter, place, 14, kHole);
    const double pitch = (place.height() - 24) / kSegments;
    for (int segment = 0; segment < kSegments; ++segment) {
        QColor glass(16, 58, 30);
        if (segment >= 6) glass = QColor(74, 58, 16);
        if (segment >= 9) glass = QColor(84, 22, 20);
        const double top = place.bottom() - 12 - (segment + 1) * pitch;
        const QRectF lens(place.left() + 14, top + 6, place.width() - 28, pitch - 12);
        fill(painter, lens, 5, shadeDown(lens, {{0, glass.lighter(150)}, {1, glass.darker(125)}}));
    }
}

void drawKnob(QPainter& painter, QPointF middle) {
    constexpr double kRadius = 118;
    for (int tick = 0; tick <= 10; ++tick) {
        painter.save();
        painter.translate(middle);
        painter.rotate(-150 + 30 * tick);
        drawLine(painter, {0, -kRadius - 22}, {0, -kRadius - 46}, kPrint, tick % 5 == 0 ? 13 : 8);
        painter.restore();
    }
    drawDisc(painter, middle + QPointF(10, 22), kRadius, QColor(0, 0, 0, 100));
    const QPointF light(kRadius * 0.4, kRadius);
    drawDisc(painter, middle, kRadius, kOutline);
    drawDisc(painter, middle, kRadius - 10,
             shade(middle - light, middle + light, {{0, {130, 136, 147}}, {1, {28, 31, 36}}}));
    drawDisc(painter, middle, kRadius - 34,
             shade(middle - light, middle + light, {{0, {62, 67, 75}}, {1, {92, 98, 108}}}));
    painter.setPen(QPen(QColor(240, 242, 246), 18, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-22, -38), middle + QPointF(-50, -86));
}

void drawLamp(QPainter& painter, QPointF middle, QColor glass) {
    drawDisc(painter, middle, 36,
             shade(middle - QPointF(0, 36), middle + QPointF(0, 36),
                   {{0, kHole}, {1, {120, 126, 136}}}));
    drawDisc(painter, middle, 26, glass);
    drawDisc(painter, middle - QPointF(7, 9), 8, QColor(255, 255, 255, 120));
}

void drawChannel(QPainter& painter, double left) {
    drawMeter(painter, {left + 40, 112, 92, kSize.height() - 224});
    drawKnob(painter, {left + 300, 318});
    drawLamp(painter, {left + 240, 600}, {24, 84, 42});
    drawLamp(painter, {left + 360, 600}, {118, 26, 24});
}

void drawSwitch(QPainter& painter, const QRectF& place) {
    fill(painter, place.adjusted(-15, -15, 15, 15), 30, QColor(255, 255, 255, 30));
    fill(painter, place, 24, kHole);
    const QRectF rocker = place.adjusted(24, 24, -24, -24);
    fill(painter, rocker, 14,
         shadeDown(
             rocker,
             {{0, {28, 30, 35}}, {0.48, {48, 52, 59}}, {0.52, {86, 92, 102}}, {1, {60, 65, 73}}}));
    const double x = rocker.center().x();
    drawLine(painter, {x, rocker.top() + 40}, {x, rocker.top() + 92}, kPrint, 12);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kPrint, 12));
    painter.drawEllipse(QPointF(x, rocker.bottom() - 68), 28, 28);
}

}  // namespace

void drawAmplifierFront(QPainter& painter, const QRectF& place) {
    constexpr double kFirst = 1180;
    constexpr double kChannel = 470;
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / kSize.width(), place.height() / kSize.height());
    drawPlates(painter);
    drawVent(painter, {500, 112, 590, kSize.height() - 224});
    for (int channel = 0; channel < 4; ++channel) drawChannel(painter, kFirst + channel * kChannel);
    drawVent(painter, {3150, 112, 270, kSize.height() - 224});
    drawLamp(painter, {3605, 170}, {30, 64, 110});
    drawSwitch(painter, {3505, kMiddle - 115, 200, 380});
    for (const double x : {320.0, kSize.width() - 340}) drawHandle(painter, x);
    painter.restore();
}

}  // namespace Orvo::Artwork
