#include "Runtime/Qt/artwork.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "Orvo/layout/common_tab.h"

namespace Orvo::Window {

namespace {

constexpr QRectF kTab(0, Layout::kTabStripHeight, Layout::kPanelWidth + 60,
                      Layout::kPanelHeight + 75 - Layout::kTabStripHeight);
constexpr double kPixel = Layout::kTwipsPerPixel;
constexpr double kRadius = 5 * kPixel;

void fillTab(QPainter& painter, QColor top, QColor bottom) {
    QLinearGradient light(kTab.topLeft(), kTab.bottomLeft());
    light.setColorAt(0, top);
    light.setColorAt(1, bottom);
    painter.fillRect(kTab.adjusted(-kPixel, -kPixel, 0, 0), light);
}

void drawPlate(QPainter& painter, const QRectF& place, QColor fill, QColor edge) {
    painter.setPen(QPen(edge, kPixel));
    painter.setBrush(fill);
    painter.drawRoundedRect(place, kRadius, kRadius);
}

// The "Common" tab: an instrument's light front.

constexpr QColor kPlate(247, 248, 250);
constexpr QColor kPlateEdge(186, 191, 201);
constexpr QColor kRule(150, 155, 170);

void drawGroup(QPainter& painter, double left, double right) {
    constexpr double kTop = 1395;
    constexpr double kHeadingLine = 1845;
    constexpr double kBottom = 5175;
    constexpr double kInset = 105;
    drawPlate(painter, {left, kTop, right - left, kBottom - kTop}, kPlate, kPlateEdge);
    painter.setPen(QPen(kPlateEdge, kPixel));
    painter.drawLine(QPointF(left + kInset, kHeadingLine), QPointF(right - kInset, kHeadingLine));
}

// The amplifier as it stands in a rack: one window and one row of vents for each channel.
void drawDevice(QPainter& painter, const QRectF& place) {
    constexpr double kEar = 165;
    constexpr double kChannels = 4;
    constexpr double kVents = 7;
    drawPlate(painter, place, {226, 229, 234}, kPlateEdge);
    painter.setPen(QPen(kPlateEdge, kPixel));
    painter.setBrush(QColor(196, 201, 210));
    for (const double ear : {place.left() + kEar / 2, place.right() - kEar / 2}) {
        painter.drawLine(
            QPointF(ear + (ear < place.center().x() ? kEar : -kEar) / 2, place.top()),
            QPointF(ear + (ear < place.center().x() ? kEar : -kEar) / 2, place.bottom()));
        for (const double y : {place.top() + 150, place.bottom() - 150}) {
            painter.drawEllipse(QPointF(ear, y), 2.5 * kPixel, 2.5 * kPixel);
        }
    }
    const double bay = (place.width() - 2 * kEar) / kChannels;
    for (int channel = 0; channel < kChannels; ++channel) {
        const double left = place.left() + kEar + channel * bay;
        painter.setBrush(QColor(206, 211, 219));
        painter.drawRoundedRect(QRectF(left + 150, place.top() + 120, bay - 300, 165), 30, 30);
        for (int vent = 0; vent < kVents; ++vent) {
            const double x = left + 150 + (bay - 300) * vent / (kVents - 1);
            painter.drawLine(QPointF(x, place.top() + 405), QPointF(x, place.bottom() - 120));
        }
    }
}

void drawCommonTab(QPainter& painter) {
    fillTab(painter, {233, 235, 239}, {209, 213, 220});
    painter.setPen(QPen(kRule, kPixel));
    painter.drawLine(QPointF(450, 960), QPointF(3660, 960));
    painter.drawLine(QPointF(7050, 960), QPointF(10260, 960));
    drawGroup(painter, 450, 1860);
    drawGroup(painter, 1995, 3675);
    drawGroup(painter, 3810, 8040);
    drawGroup(painter, 8175, 10260);
    drawPlate(painter, {450, 5520, 9810, 1170}, kPlate, kPlateEdge);
    drawDevice(painter, {735, 5745, 4200, 720});
}

// The pair tabs: the signal's way from the generator to the scopes on a dark front.

constexpr QColor kDarkPlate(44, 52, 66);
constexpr QColor kDarkEdge(78, 90, 110);
constexpr QColor kWire(104, 116, 136);
constexpr QColor kInk(30, 34, 42);

void drawWire(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(kWire, kPixel));
    painter.drawLine(from, to);
}

void drawArrow(QPainter& painter, QPointF from, QPointF to) {
    constexpr double kHead = 5 * kPixel;
    drawWire(painter, from, to);
    const bool isUp = from.x() == to.x();
    const QPointF back = isUp ? QPointF(0, kHead) : QPointF(-kHead, 0);
    const QPointF side = isUp ? QPointF(kHead / 2, 0) : QPointF(0, kHead / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kWire);
    painter.drawPolygon(QPolygonF({to, to + back + side, to + back - side}));
}

void drawSign(QPainter& painter, QPointF at, bool isPlus) {
    constexpr double kArm = 2.5 * kPixel;
    painter.setPen(QPen(kInk, 1.2 * kPixel));
    painter.drawLine(at - QPointF(kArm, 0), at + QPointF(kArm, 0));
    if (isPlus) painter.drawLine(at - QPointF(0, kArm), at + QPointF(0, kArm));
}

void drawAmplifier(QPainter& painter, QPointF positive, QPointF negative, QPointF output) {
    constexpr double kBeyond = 225;
    const double left = positive.x();
    QLinearGradient metal(left, positive.y(), left, negative.y());
    metal.setColorAt(0, {226, 230, 236});
    metal.setColorAt(1, {186, 193, 204});
    painter.setPen(QPen(QColor(236, 239, 244), kPixel));
    painter.setBrush(metal);
    painter.drawPolygon(
        QPolygonF({{left, positive.y() - kBeyond}, output, {left, negative.y() + kBeyond}}));
    drawSign(painter, positive + QPointF(60, 0), true);
    drawSign(painter, negative + QPointF(60, 0), false);
}

// Where the signal lamp of a channel takes what it shows.
void drawTap(QPainter& painter, double positive, double negative, double lamp) {
    constexpr double kAt = 3767;
    constexpr double kRing = 3 * kPixel;
    drawWire(painter, {kAt, qMin(positive, lamp)}, {kAt, qMax(negative, lamp)});
    painter.setBrush(kDarkPlate);
    for (const double y : {positive, negative}) painter.drawEllipse(QPointF(kAt, y), kRing, kRing);
}

void drawWaveform(QPainter& painter, const QRectF& place) {
    drawPlate(painter, place, {26, 31, 40}, kDarkEdge);
    const QRectF inside = place.adjusted(90, 75, -90, -75);
    const double y = inside.center().y();
    const double swing = inside.height();
    QPainterPath wave(QPointF(inside.left(), y));
    wave.quadTo(inside.left() + inside.width() / 4, y - swing, inside.center().x(), y);
    wave.quadTo(inside.right() - inside.width() / 4, y + swing, inside.right(), y);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 166, 190), 1.2 * kPixel));
    painter.drawPath(wave);
}

void drawPairTab(QPainter& painter) {
    fillTab(painter, {36, 43, 55}, {24, 29, 38});
    drawPlate(painter, {255, 480, 1650, 1830}, kDarkPlate, kDarkEdge);    // generator
    drawPlate(painter, {2265, 2550, 1125, 1545}, kDarkPlate, kDarkEdge);  // test temperature
    drawPlate(painter, {4200, 870, 2880, 4500}, kDarkPlate, kDarkEdge);   // amplifier
    drawPlate(painter, {4200, 5790, 2880, 600}, kDarkPlate, kDarkEdge);   // power supply
    drawPlate(painter, {255, 5025, 1950, 1515}, kDarkPlate, kDarkEdge);   // mains
    drawPlate(painter, {7230, 2895, 3105, 1065}, kDarkPlate, kDarkEdge);  // rails
    // The frames that stand on these have the same colours.
    drawPlate(painter, {315, 900, 1530, 1275}, {77, 74, 67}, {100, 97, 90});
    drawPlate(painter, {1515, 2760, 285, 1455}, {41, 22, 111}, {78, 58, 160});
    drawPlate(painter, {2250, 840, 1065, 1635}, Qt::black, kDarkEdge);
    drawPlate(painter, {2250, 4200, 1065, 1635}, Qt::black, kDarkEdge);
    drawPlate(painter, {4275, 915, 2715, 555}, {128, 128, 128}, {160, 160, 160});
    drawPlate(painter, {7305, 3030, 1785, 375}, Qt::black, kDarkEdge);
    drawPlate(painter, {7305, 3465, 1785, 375}, Qt::black, kDarkEdge);
    drawArrow(painter, {2205, 6090}, {4200, 6090});
    drawArrow(painter, {5640, 5790}, {5640, 5035});
    drawArrow(painter, {5640, 4460}, {5640, 2315});
    drawTap(painter, 1860, 2250, 1575);
    drawTap(painter, 4560, 4950, 5280);
    drawAmplifier(painter, {5340, 1860}, {5340, 2250}, {6120, 2040});
    drawAmplifier(painter, {5400, 4560}, {5400, 4950}, {6150, 4740});
    drawWaveform(painter, {735, 2490, 510, 330});
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(210, 216, 226));
    painter.drawEllipse(QPointF(637, 2310), 3 * kPixel, 3 * kPixel);
}

}  // namespace

void drawArtwork(QPainter& painter, Layout::Image image) {
    painter.setRenderHint(QPainter::Antialiasing);
    // Onto the middle of the pixels at zoom 1, where an edge is sharp.
    painter.translate(kPixel / 2, kPixel / 2);
    switch (image) {
        case Layout::Image::commonTab:
            return drawCommonTab(painter);
        case Layout::Image::pairTab:
            return drawPairTab(painter);
        default:
            return;
    }
}

}  // namespace Orvo::Window
