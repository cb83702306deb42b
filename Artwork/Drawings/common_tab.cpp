#include <QPainter>

#include "Artwork/Drawings/amplifier_front.h"
#include "Artwork/Drawings/drawings.h"
#include "Artwork/Drawings/materials.h"
#include "Orvo/window/drawing/palette.h"

// The "Common" tab: an instrument's light front.
namespace Orvo::Artwork {

namespace {

constexpr QRectF kPlace = placeOf(Layout::kCommon.background);
constexpr QColor kEdge(182, 188, 199);
constexpr QColor kRule(150, 155, 170);
constexpr QColor kFine(224, 227, 233);
constexpr Finish kPlate{
    {251, 252, 253}, Window::Palette::kLightGround, kEdge, {255, 255, 255}, {0, 0, 0, 26}};

void drawRule(QPainter& painter, double left, double right, double y, QColor colour) {
    painter.setPen(QPen(colour, kPixel));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
}

// From the heading's centre line as far up as down to the rule below it.
constexpr double kTop = 1485;
constexpr double kHeadingLine = 1830;
constexpr double kBottom = 5175;
constexpr double kInset = 75;

void drawHeadingLine(QPainter& painter, double left, double right) {
    drawRule(painter, left + kInset, right - kInset, kHeadingLine, kEdge);
}

void drawCard(QPainter& painter, double left, double right) {
    drawPlate(painter, {left, kTop, right - left, kBottom - kTop}, kPlate);
}

// Fine rules half-way between the rows of a group.
void drawRows(QPainter& painter, double left, double right, std::initializer_list<double> rules) {
    for (const double y : rules) drawRule(painter, left + kInset, right - kInset, y, kFine);
}

// Settings and status share a card: their headings are too close to be in the middle of two.
void drawCards(QPainter& painter) {
    constexpr double kSettings = 510;
    constexpr double kStatus = 1785;
    constexpr double kStatusEnd = 3660;
    constexpr double kLog = 3825;
    constexpr double kLogEnd = 7965;
    constexpr double kTest = 8070;
    constexpr double kTestEnd = 10215;
    drawCard(painter, kSettings, kStatusEnd);
    drawHeadingLine(painter, kSettings, kStatus);
    drawHeadingLine(painter, kStatus, kStatusEnd);
    painter.setPen(QPen(kEdge, kPixel));
    painter.drawLine(QPointF(kStatus, kTop + kInset), QPointF(kStatus, kBottom - kInset));
    drawRows(painter, kStatus, kStatusEnd, {2715, 3510, 4305});
    drawCard(painter, kLog, kLogEnd);
    drawHeadingLine(painter, kLog, kLogEnd);
    drawCard(painter, kTest, kTestEnd);
    drawHeadingLine(painter, kTest, kTestEnd);
    drawRows(painter, kTest, kTestEnd, {2310, 2850, 3375, 3930, 4485});
}

void draw(QPainter& painter) {
    alignToPixels(painter);
    drawGround(painter, kPlace, kCommonGround);
    drawRule(painter, 510, 3660, 960, kRule);
    drawRule(painter, 7065, 10215, 960, kRule);
    drawCards(painter);
    // The log's frame.
    painter.setPen(QPen(kRule, kPixel));
    painter.setBrush(QColor(58, 66, 80));
    painter.drawRoundedRect(placeOf(Layout::kCommon.log).adjusted(-30, -15, 15, 15), 30, 30);
    drawPlate(painter, {510, 5520, 9705, 1170}, kPlate);
    drawAmplifierFront(painter, {795, 5723, 4200, 765});
}

}  // namespace

constinit const Drawing kCommonTab{kPlace, draw};

}  // namespace Orvo::Artwork
