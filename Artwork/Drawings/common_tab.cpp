#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Artwork/Drawings/materials.h"

// The "Common" tab: an instrument's light front.
namespace Orvo::Artwork {

namespace {

constexpr QRectF kPlace = placeOf(Layout::kCommon.background);
constexpr QColor kEdge(182, 188, 199);
constexpr QColor kRule(150, 155, 170);
constexpr QColor kFine(224, 227, 233);
constexpr Finish kPlate{{251, 252, 253}, {240, 242, 246}, kEdge, {255, 255, 255}, {0, 0, 0, 26}};
constexpr Finish kSteel{{232, 235, 240}, {208, 213, 221}, kEdge, {255, 255, 255}, {0, 0, 0, 40}};

void drawRule(QPainter& painter, double left, double right, double y, QColor colour) {
    painter.setPen(QPen(colour, kPixel));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
}

void drawGroup(QPainter& painter, double left, double right) {
    constexpr double kTop = 1395;
    constexpr double kBottom = 5175;
    constexpr double kHeadingLine = 1860;
    constexpr double kInset = 105;
    drawPlate(painter, {left, kTop, right - left, kBottom - kTop}, kPlate);
    drawRule(painter, left + kInset, right - kInset, kHeadingLine, kEdge);
}

// Fine rules half-way between the rows of a group.
void drawRows(QPainter& painter, double left, double right, std::initializer_list<double> rules) {
    for (const double y : rules) drawRule(painter, left + 105, right - 105, y, kFine);
}

void drawScrew(QPainter& painter, QPointF at) {
    constexpr double kHead = 3 * kPixel;
    painter.setPen(QPen(kEdge, kPixel));
    painter.setBrush(QColor(190, 196, 206));
    painter.drawEllipse(at, kHead, kHead);
    const QPointF slot(kHead * 0.55, kHead * 0.55);
    painter.setPen(QPen(QColor(126, 133, 146), kPixel));
    painter.drawLine(at - slot, at + slot);
}

// A channel's bay: its window above its vents.
void drawBay(QPainter& painter, const QRectF& place) {
    constexpr int kVents = 9;
    painter.setPen(QPen(kEdge, kPixel));
    painter.setBrush(QColor(58, 66, 80));
    painter.drawRoundedRect(QRectF(place.left(), place.top(), place.width(), 165), 30, 30);
    painter.setPen(QPen(QColor(150, 157, 169), 1.5 * kPixel, Qt::SolidLine, Qt::RoundCap));
    for (int vent = 0; vent < kVents; ++vent) {
        const double x = place.left() + place.width() * vent / (kVents - 1);
        painter.drawLine(QPointF(x, place.top() + 285), QPointF(x, place.bottom()));
    }
}

// The amplifier as it stands in a rack.
void drawDevice(QPainter& painter, const QRectF& place) {
    constexpr double kEar = 210;
    constexpr int kChannels = 4;
    drawPlate(painter, place, kSteel);
    for (const double ear : {place.left() + kEar / 2, place.right() - kEar / 2}) {
        for (const double y : {place.top() + 150, place.bottom() - 150})
            drawScrew(painter, {ear, y});
    }
    painter.setPen(QPen(kEdge, kPixel));
    for (const double x : {place.left() + kEar, place.right() - kEar}) {
        painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom()));
    }
    const double bay = (place.width() - 2 * kEar) / kChannels;
    for (int channel = 0; channel < kChannels; ++channel) {
        const double left = place.left() + kEar + channel * bay;
        drawBay(painter, {left + 135, place.top() + 120, bay - 270, place.height() - 255});
    }
}

void draw(QPainter& painter) {
    alignToPixels(painter);
    drawGround(painter, kPlace, {233, 235, 239}, {222, 225, 231}, {203, 208, 216});
    drawRule(painter, 450, 3660, 960, kRule);
    drawRule(painter, 7050, 10260, 960, kRule);
    drawGroup(painter, 450, 1860);
    drawGroup(painter, 1995, 3675);
    drawRows(painter, 1995, 3675, {2715, 3510, 4305});
    drawGroup(painter, 3810, 8040);
    drawGroup(painter, 8175, 10260);
    drawRows(painter, 8175, 10260, {2310, 2850, 3375, 3930, 4485});
    // The log's frame.
    painter.setPen(QPen(kRule, kPixel));
    painter.setBrush(QColor(58, 66, 80));
    painter.drawRoundedRect(placeOf(Layout::kCommon.log).adjusted(-45, -30, 30, 30), 30, 30);
    drawPlate(painter, {450, 5520, 9810, 1170}, kPlate);
    drawDevice(painter, {735, 5745, 4200, 720});
}

}  // namespace

constinit const Drawing kCommonTab{kPlace, draw};

}  // namespace Orvo::Artwork
