#include "Runtime/Qt/painted_kinds.h"

#include <QPaintDevice>
#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Runtime/Qt/text.h"

namespace Orvo::Window {

void PaintedLine::layOut(const Scale& scale) {
    const auto& [x1, y1, x2, y2] = description().place;
    const Corner corner = cornerOf(description().container);
    line_ = {scale.point(corner.left + x1, corner.top + y1),
             scale.point(corner.left + x2, corner.top + y2)};
    thickness_ = scale.thickness(1.4);
}

QRect PaintedLine::bounds() const {
    const QRect ends = QRect(line_.p1(), line_.p2()).normalized();
    return ends.adjusted(-thickness_, -thickness_, thickness_, thickness_);
}

void PaintedLine::paint(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, !isStraight());
    painter.setPen(
        QPen(toQt(stored<Runtime::StoredLine>().colour), thickness_, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(line_);
}

void PaintedFrame::layOut(const Scale& scale) { place_ = scale.rect(id()); }

QRect PaintedFrame::bounds() const { return place_; }

void PaintedFrame::paint(QPainter& painter) const { painter.fillRect(place_, toQt(looks().back)); }

void PaintedDigit::layOut(const Scale& scale) {
    place_ = scale.rect(id());
    QTransform cell;
    cell.translate(place_.left(), place_.top());
    cell.scale(scale.zoom(), scale.zoom());
    for (int segment = 0; segment < kSegmentCount; ++segment) {
        QPainterPath outline;
        outline.addPolygon(segmentOutline(segment));
        outline.closeSubpath();
        segments_[std::size_t(segment)] = cell.map(outline);
    }
}

QRect PaintedDigit::bounds() const { return place_; }

void PaintedDigit::paint(QPainter& painter) const {
    const auto digit = stored<Runtime::StoredDigit>().digit;
    painter.setRenderHint(QPainter::Antialiasing);
    for (int segment = 0; segment < kSegmentCount; ++segment) {
        const bool lit = digit && isLit(*digit, segment);
        painter.fillPath(segments_[std::size_t(segment)], toQt(lit ? looks().text : looks().back));
    }
}

void PaintedScopeHeader::layOut(const Scale& scale) {
    const auto& place = description().place;
    const Corner corner = cornerOf(description().container);
    place_ = scale.rect(corner.left + place.left, corner.top + place.top, place.width,
                        Layout::kScopeTabHeight);
    font_ = toQt(looks().font, scale.zoom());
}

QRect PaintedScopeHeader::bounds() const { return place_; }

void PaintedScopeHeader::paint(QPainter& painter) const {
    const QString text = toQt(description().caption);
    const int width = qCeil(widthOf(text, font_)) + place_.height();
    const QRect tab(place_.topLeft(), QSize(width, place_.height()));
    painter.fillRect(tab, toQt(looks().back));
    painter.setFont(font_);
    painter.setPen(toQt(looks().text));
    painter.drawText(tab, Qt::AlignCenter | Qt::TextDontClip, text);
}

void PaintedImage::layOut(const Scale& scale) {
    place_ = scale.rect(id());
    artwork_ = {};
}

QRect PaintedImage::bounds() const { return place_; }

void PaintedImage::paint(QPainter& painter) const {
    const double ratio = painter.device()->devicePixelRatioF();
    if (artwork_.isNull() || artwork_.devicePixelRatio() != ratio) draw(ratio);
    painter.drawPixmap(place_.topLeft(), artwork_);
}

void PaintedImage::draw(double devicePixelRatio) const {
    artwork_ = QPixmap(place_.size() * devicePixelRatio);
    artwork_.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&artwork_);
    const bool isCommon = looks().image == Layout::Image::commonTab;
    Artwork::paint(painter, isCommon ? Artwork::kCommonTab : Artwork::kPairTab,
                   QRectF(QPointF(), QSizeF(place_.size())));
}

}  // namespace Orvo::Window
