#include "Orvo/window/painted/painted_kinds.h"

#include <QPainter>

#include "Artwork/Drawings/drawings.h"
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

void PaintedLine::paint(QPainter& painter) const {
    const QColor colour = toQt(stored<Runtime::StoredLine>().colour);
    painter.setRenderHint(QPainter::Antialiasing, line().dx() != 0 && line().dy() != 0);
    painter.setPen(QPen(colour, thickness(), Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(line());
}

void PaintedFrame::paint(QPainter& painter) const { painter.fillRect(place(), toQt(looks().back)); }

void PaintedDigit::layOut(const Scale& scale) {
    Painted::layOut(scale);
    QTransform cell;
    cell.translate(place().left(), place().top());
    cell.scale(scale.zoom(), scale.zoom());
    for (int segment = 0; segment < kSegmentCount; ++segment) {
        QPainterPath outline;
        outline.addPolygon(segmentOutline(segment));
        outline.closeSubpath();
        segments_[std::size_t(segment)] = cell.map(outline);
    }
}

// The unlit ones first, so that the light falls on them.
void PaintedDigit::paint(QPainter& painter) const {
    const auto digit = stored<Runtime::StoredDigit>().digit;
    painter.setRenderHint(QPainter::Antialiasing);
    for (const bool lit : {false, true}) {
        for (int segment = 0; segment < kSegmentCount; ++segment) {
            if ((digit && isLit(*digit, segment)) != lit) continue;
            const QPainterPath& outline = segments_[std::size_t(segment)];
            lit ? paintLit(painter, outline) : paintUnlit(painter, outline);
        }
    }
}

void PaintedDigit::paintLit(QPainter& painter, const QPainterPath& segment) const {
    constexpr double kGlow = 1.5;  // pixels, half of it within the segment
    QColor glow = toQt(looks().text);
    glow.setAlpha(60);
    painter.strokePath(segment, QPen(glow, scale().measure(kGlow)));
    painter.fillPath(segment, toQt(looks().text));
}

// Some are as grey as the frame they are on: it is their engraved edge that shows.
void PaintedDigit::paintUnlit(QPainter& painter, const QPainterPath& segment) const {
    constexpr double kEdge = 0.6;  // pixels
    painter.fillPath(segment, toQt(looks().back));
    painter.strokePath(segment, QPen(toQt(looks().back).darker(125), scale().measure(kEdge)));
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
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(tab);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQt(looks().back));
    const double radius = header.height() / 4.0;
    painter.drawRoundedRect(QRectF(tab).adjusted(0, 0, 0, radius), radius, radius);
    painter.setClipping(false);
    painter.setFont(font);
    painter.setPen(toQt(looks().text));
    // In the middle, and where the stems of small letters stand on whole pixels.
    painter.drawText(QRectF(tab).adjusted(margin + 0.5, 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextDontClip, text);
}

void PaintedImage::layOut(const Scale& scale) {
    Painted::layOut(scale);
    artwork_ = {};
}

void PaintedImage::paint(QPainter& painter) const {
    const double ratio = painter.device()->devicePixelRatioF();
    if (artwork_.isNull() || artwork_.devicePixelRatio() != ratio) draw(ratio);
    painter.drawPixmap(place().topLeft(), artwork_);
}

void PaintedImage::draw(double devicePixelRatio) const {
    artwork_ = QPixmap(place().size() * devicePixelRatio);
    artwork_.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&artwork_);
    const bool isCommon = looks().image == Layout::Image::commonTab;
    Artwork::paint(painter, isCommon ? Artwork::kCommonTab : Artwork::kPairTab,
                   QRectF(QPointF(), QSizeF(place().size())));
}

}  // namespace Orvo::Window
