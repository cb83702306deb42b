#include <QFontMetricsF>
#include <QPainter>

#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

namespace {

bool isPale(QColor colour) { return qGray(colour.rgb()) > 160; }

}  // namespace

void PaintedLabel::layOut(const Scale& scale) {
    Painted::layOut(scale);
    edge_ = scale.thickness(1);
    font_ = toQt(looks().font, scale.zoom());
    firstFont_ = fontOfFirst();
}

// The places of the extended face are as wide as its texts, and it is seldom installed.
QFont PaintedLabel::fontOfFirst() const {
    const QString first = toQt(description().caption).trimmed();
    if (looks().flow == Layout::TextFlow::wrapped) return font_;
    const bool isExtended = looks().font.face == Layout::Face::microgramma;
    const int width = place().width();
    return isExtended ? fitted(font_, first, width) : narrowed(font_, first, width);
}

QString PaintedLabel::text() const { return toQt(stored<Runtime::StoredLabel>().caption); }

QFont PaintedLabel::font() const {
    return stored<Runtime::StoredLabel>().caption == description().caption ? firstFont_ : font_;
}

// Capitals in the middle: some faces have much more room above them than below.
int PaintedLabel::baseline() const {
    return qRound(place().top() + (place().height() + QFontMetricsF(font()).capHeight()) / 2);
}

QRect PaintedLabel::textPlace() const {
    if (looks().flow == Layout::TextFlow::wrapped) return place();
    return place().adjusted(0, 0, qCeil(widthOf(text(), font())), 0);
}

QRect PaintedLabel::bounds() const {
    // A pixel more for what italics and antialiasing put outside.
    const int more = edge_ + 1;
    return place().united(textPlace()).adjusted(-more, -more, more, more);
}

// What is laid out dark has a light ground: a pale text would be lost on it without a dark edge.
void PaintedLabel::paint(QPainter& painter) const {
    const QColor colour = toQt(stored<Runtime::StoredLabel>().colour);
    const QColor laidOut = toQt(looks().text);
    painter.setFont(font());
    if (isPale(colour) && !isPale(laidOut)) paintEdge(painter, laidOut);
    painter.setPen(colour);
    paintText(painter);
}

void PaintedLabel::paintEdge(QPainter& painter, QColor colour) const {
    painter.setPen(colour);
    for (const int x : {-edge_, 0, edge_}) {
        for (const int y : {-edge_, 0, edge_}) {
            painter.translate(x, y);
            paintText(painter);
            painter.translate(-x, -y);
        }
    }
}

void PaintedLabel::paintText(QPainter& painter) const {
    if (looks().flow == Layout::TextFlow::line)
        return painter.drawText(QPointF(place().left(), baseline()), text());
    painter.drawText(place(), Qt::AlignCenter | Qt::TextWordWrap | Qt::TextDontClip, text());
}

}  // namespace Orvo::Window
