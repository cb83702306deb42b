#include <QFontMetricsF>
#include <QPainter>

#include "Runtime/Qt/painted_kinds.h"
#include "Runtime/Qt/text.h"

namespace Orvo::Window {

void PaintedLabel::layOut(const Scale& scale) {
    place_ = scale.rect(id());
    font_ = toQt(looks().font, scale.zoom());
    firstFont_ = fontOfFirst();
}

// The places of the extended face are as wide as its texts, and it is seldom installed.
QFont PaintedLabel::fontOfFirst() const {
    const QString first = toQt(description().caption).trimmed();
    if (looks().flow == Layout::TextFlow::wrapped) return font_;
    const bool isExtended = looks().font.face == Layout::Face::microgramma;
    const int width = place_.width();
    return isExtended ? fitted(font_, first, width) : narrowed(font_, first, width);
}

QString PaintedLabel::text() const { return toQt(stored<Runtime::StoredLabel>().caption); }

QFont PaintedLabel::font() const {
    return stored<Runtime::StoredLabel>().caption == description().caption ? firstFont_ : font_;
}

// Capitals in the middle: some faces have much more room above them than below.
int PaintedLabel::baseline() const {
    return qRound(place_.top() + (place_.height() + QFontMetricsF(font()).capHeight()) / 2);
}

QRect PaintedLabel::textPlace() const {
    if (looks().flow == Layout::TextFlow::wrapped) return place_;
    return place_.adjusted(0, 0, qCeil(widthOf(text(), font())), 0);
}

QRect PaintedLabel::bounds() const {
    // A pixel more for what italics and antialiasing put outside.
    return place_.united(textPlace()).adjusted(-1, -1, 1, 1);
}

void PaintedLabel::paint(QPainter& painter) const {
    painter.setFont(font());
    painter.setPen(toQt(stored<Runtime::StoredLabel>().colour));
    if (looks().flow == Layout::TextFlow::line)
        return painter.drawText(QPointF(place_.left(), baseline()), text());
    painter.drawText(place_, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextDontClip, text());
}

}  // namespace Orvo::Window
