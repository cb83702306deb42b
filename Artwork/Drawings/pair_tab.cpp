#include <QLinearGradient>
#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Artwork/Drawings/materials.h"
#include "Orvo/window/drawing/palette.h"

// The pair tabs: the signal's way from the generator to the scopes on a dark front.
namespace Orvo::Artwork {

namespace {

constexpr QRectF kPlace = placeOf(Layout::pair(1).background);
constexpr QColor kEdge(80, 92, 112);
constexpr QColor kWire(110, 123, 144);
constexpr QColor kInk(30, 34, 42);
constexpr Finish kPlate{
    Window::Palette::kDarkGround, {40, 47, 60}, kEdge, {255, 255, 255, 26}, {0, 0, 0, 80}};
constexpr Finish kBezel{
    {62, 68, 79}, {40, 45, 54}, {92, 101, 117}, {255, 255, 255, 40}, {0, 0, 0, 90}};

void drawWire(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(kWire, kPixel));
    painter.drawLine(from, to);
}

void drawArrow(QPainter& painter, QPointF from, QPointF to) {
    constexpr double kHead = 6 * kPixel;
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
    const double top = positive.y() - kBeyond;
    const double bottom = negative.y() + kBeyond;
    QLinearGradient metal(left, top, left, bottom);
    metal.setColorAt(0, {238, 241, 245});
    metal.setColorAt(1, {176, 184, 196});
    painter.setPen(
        QPen(QColor(242, 244, 248), kPixel, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.setBrush(metal);
    painter.drawPolygon(QPolygonF({{left, top}, output, {left, bottom}}));
    drawSign(painter, positive + QPointF(60, 0), true);
    drawSign(painter, negative + QPointF(60, 0), false);
}

// Where the signal lamp of a channel takes what it shows.
void drawTap(QPainter& painter, double positive, double negative, double lamp) {
    constexpr double kAt = 3767;
    constexpr double kRing = 3 * kPixel;
    drawWire(painter, {kAt, qMin(positive, lamp)}, {kAt, qMax(negative, lamp)});
    painter.setBrush(kPlate.bottom);
    for (const double y : {positive, negative}) painter.drawEllipse(QPointF(kAt, y), kRing, kRing);
}

void drawWaveform(QPainter& painter, const QRectF& place) {
    drawRecess(painter, place, {22, 27, 35}, kEdge);
    const QRectF inside = place.adjusted(90, 75, -90, -75);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(158, 174, 198), 1.4 * kPixel));
    painter.drawPath(waveThrough(inside, inside.height()));
}

void drawPlates(QPainter& painter) {
    drawPlate(painter, {255, 480, 1650, 1830}, kPlate);    // generator
    drawPlate(painter, {2250, 2565, 1110, 1530}, kPlate);  // test temperature
    drawPlate(painter, {4200, 870, 2880, 4500}, kPlate);   // amplifier
    drawPlate(painter, {4200, 5640, 2880, 900}, kPlate);   // power supply
    drawPlate(painter, {255, 5025, 1950, 1515}, kPlate);   // mains
    drawPlate(painter, {7200, 390, 3135, 510}, kPlate);    // amplifier id and link
    drawPlate(painter, {7200, 2910, 3135, 1035}, kPlate);  // rails
    drawPlate(painter, {7200, 960, 3135, 1800}, kBezel);   // upper scope
    drawPlate(painter, {7200, 4050, 3135, 1800}, kBezel);  // lower scope
}

void drawRecesses(QPainter& painter) {
    const Layout::Pair& pair = Layout::pair(1);
    const Layout::Channel& upper = Layout::channel(1);
    const Layout::Channel& lower = Layout::channel(2);
    drawRecessAround(painter, pair.waves[0], {112, 108, 98}, {45, 60, 270, 60});  // and Start
    drawRecessAround(painter, upper.positive.option, {84, 64, 168}, {45, 60, 45, 60});
    drawRecessAround(painter, upper.volumeSlider, kEdge, {30, 30, 75, 30});
    drawRecessAround(painter, lower.volumeSlider, kEdge, {30, 30, 75, 30});
    drawRecessAround(painter, pair.positivePower.places[0], kEdge, {45, 45, 45, 45});
    drawRecessAround(painter, pair.positiveAux.places[0], kEdge, {45, 45, 45, 45});
    drawRecessAround(painter, pair.clockLamp, {168, 168, 168}, {45, 45, 45, 45});
}

void drawConnections(QPainter& painter) {
    drawArrow(painter, {2205, 6090}, {4200, 6090});
    drawArrow(painter, {5640, 5640}, {5640, 5035});
    drawArrow(painter, {5640, 4460}, {5640, 2315});
    drawTap(painter, 1860, 2250, 1575);
    drawTap(painter, 4560, 4950, 5280);
    drawAmplifier(painter, {5340, 1860}, {5340, 2250}, {6120, 2040});
    drawAmplifier(painter, {5400, 4560}, {5400, 4950}, {6150, 4740});
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(210, 216, 226));
    painter.drawEllipse(QPointF(630, 2310), 3 * kPixel, 3 * kPixel);
}

void draw(QPainter& painter) {
    alignToPixels(painter);
    drawGround(painter, kPlace, kPairGround);
    drawPlates(painter);
    drawRecesses(painter);
    drawConnections(painter);
    drawWaveform(painter, {735, 2490, 510, 330});
}

}  // namespace

constinit const Drawing kPairTab{kPlace, draw};

}  // namespace Orvo::Artwork
