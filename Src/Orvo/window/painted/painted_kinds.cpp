#include "Orvo/window/painted/painted_kinds.h"

#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Orvo/window/drawing/contrast.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

QLine PaintedLine::line() const {
    const auto& [x1, y1, x2, y2] = description().place;
    const Corner corner = cornerOf(description().container);
    return {scale().point(corner.left + x1, corner.top + y1),
            scale().point(corner.left + x2, corner.top + y2)};
}

QRect PaintedLine::bounds() const {
    const QRect ends = QRect(line().p1(), line().p2()).normalized();
    return ends.adjusted(-thickness(), -thickness(), thickness(), thickness());
}

bool PaintedLine::isAsLaidOut() const {
    return stored<Runtime::StoredLine>().colour == looks().text;
}

void PaintedLine::paint(QPainter& painter) const {
    const QColor colour = toQt(stored<Runtime::StoredLine>().colour);
    painter.setRenderHint(QPainter::Antialiasing, line().dx() != 0 && line().dy() != 0);
    painter.setPen(QPen(colour, thickness(), Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(line());
}

// Those that it is too bright for.
QRect PaintedFrame::captions() const {
    QRect all;
    for (const WidgetId id : Layout::kAll<Kind::label>) {
        const Layout::Widget& label = Layout::describe(id);
        const bool isOnIt = &Layout::describe(label.container) == &description();
        const double contrast = contrastOf(toQt(label.style.text), toQt(looks().back));
        if (isOnIt && contrast < kTextContrast) all |= scale().rect(id);
    }
    return all;
}

void PaintedFrame::paint(QPainter& painter) const {
    painter.fillRect(place(), toQt(looks().back));
    const QRect band(place().left(), captions().top(), place().width(), captions().height());
    painter.fillRect(band, Palette::kCaptionBand);
}

int PaintedDigit::state() const {
    return int(stored<Runtime::StoredDigit>().digit.value_or(-1)) + 1;
}

QRect PaintedDigit::ink() const {
    return {place().topLeft(), QSize(qCeil(scale().measure(kSegmentCell.width())),
                                     qCeil(scale().measure(kSegmentCell.height())))};
}

QPainterPath PaintedDigit::segment(int number) const {
    QTransform cell;
    cell.translate(place().left(), place().top());
    cell.scale(scale().zoom(), scale().zoom());
    QPainterPath outline;
    outline.addPolygon(segmentOutline(number));
    outline.closeSubpath();
    return cell.map(outline);
}

// The unlit ones first, so that the light falls on them.
void PaintedDigit::draw(QPainter& painter, int state) const {
    QPainterPath lit;
    QPainterPath unlit;
    for (int number = 0; number < kSegmentCount; ++number) {
        (state > 0 && isLit(state - 1, number) ? lit : unlit).addPath(segment(number));
    }
    drawUnlit(painter, unlit);
    drawLit(painter, lit);
}

// Those that hardly differ from the unlit ones are lifted by a dark edge instead of a glow.
void PaintedDigit::drawLit(QPainter& painter, const QPainterPath& segments) const {
    constexpr double kAround = 1.6;  // pixels, half of it within the segment
    QColor around = toQt(looks().text);
    around.setAlpha(60);
    if (contrastOf(toQt(looks().text), toQt(looks().back)) < kShapeContrast) around = Qt::black;
    painter.strokePath(segments, QPen(around, scale().measure(kAround)));
    painter.fillPath(segments, toQt(looks().text));
}

// Some are as grey as the frame they are on: it is their engraved edge that shows.
void PaintedDigit::drawUnlit(QPainter& painter, const QPainterPath& segments) const {
    constexpr double kEdge = 0.6;  // pixels
    painter.fillPath(segments, toQt(looks().back));
    painter.strokePath(segments, QPen(toQt(looks().back).darker(125), scale().measure(kEdge)));
}

QRect PaintedScopeHeader::bounds() const {
    const auto& place = description().place;
    const Corner corner = cornerOf(description().container);
    return scale().rect(corner.left + place.left, corner.top + place.top, place.width,
                        Layout::kScopeTabHeight);
}

void PaintedScopeHeader::paint(QPainter& painter) const {
    const QString text = toQt(description().caption);
    const QFont font = toQt(looks().font, scale().zoom());
    const QRect header = bounds();
    const int margin = header.height() / 2;
    const int width = qCeil(widthOf(text, font)) + 2 * margin;
    const QRect tab(header.topLeft(), QSize(width, header.height()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(tab, Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQt(looks().back));
    const double radius = header.height() / 4.0;
    painter.drawRoundedRect(QRectF(tab).adjusted(0, 0, 0, radius), radius, radius);
    painter.restore();
    painter.setFont(font);
    painter.setPen(toQt(looks().text));
    // In the middle, and where the stems of small letters stand on whole pixels.
    painter.drawText(QRectF(tab).adjusted(margin + 0.5, 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextDontClip, text);
}

// On whole pixels of the device, for its fine lines.
void PaintedImage::paint(QPainter& painter) const {
    const bool isCommon = looks().image == Layout::Image::commonTab;
    const QPointF corner = painter.deviceTransform().map(QPointF(place().topLeft()));
    const QPointF off =
        (QPointF(corner.toPoint()) - corner) / painter.device()->devicePixelRatioF();
    painter.translate(off);
    Artwork::paint(painter, isCommon ? Artwork::kCommonTab : Artwork::kPairTab, place());
    painter.translate(-off);
}

}  // namespace Orvo::Window
