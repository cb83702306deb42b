#include <QFontMetricsF>
#include <QPainter>

#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

namespace {

bool isPale(QColor colour) { return qGray(colour.rgb()) > 160; }

}  // namespace

void PaintedLabel::layOut(const Scale& scale) {
    Painted::layOut(scale);
    fonts_.reset();
}

bool PaintedLabel::hasFirstText() const {
    return stored<Runtime::StoredLabel>().caption == description().caption;
}

bool PaintedLabel::isAsLaidOut() const {
    return hasFirstText() && stored<Runtime::StoredLabel>().colour == looks().text;
}

// The places of the extended face are as wide as its texts, and it is seldom installed.
QFont PaintedLabel::fontOfFirst(const QFont& font) const {
    const QString first = toQt(description().caption).trimmed();
    if (looks().flow == Layout::TextFlow::wrapped) return font;
    const bool isExtended = looks().font.face == Layout::Face::microgramma;
    const int width = place().width();
    return isExtended ? spaced(font, first, width) : narrowed(font, first, width);
}

QString PaintedLabel::text() const {
    const String& caption = stored<Runtime::StoredLabel>().caption;
    return hasFirstText() ? toQt(caption) : shown(caption);
}

// Only now that they are needed: to load a font is what takes longest about a window.
const QFont& PaintedLabel::font() const {
    if (!fonts_) {
        const QFont plain = toQt(looks().font, scale().zoom());
        fonts_ = {fontOfFirst(plain), plain};
    }
    return hasFirstText() ? fonts_->ofFirst : fonts_->ofOthers;
}

// Capitals in the middle: some faces have much more room above them than below.
int PaintedLabel::baseline() const {
    return qRound(place().top() + (place().height() + QFontMetricsF(font()).capHeight()) / 2);
}

QRect PaintedLabel::textPlace() const {
    if (looks().flow == Layout::TextFlow::wrapped) return place();
    return place().adjusted(0, 0, qCeil(widthOf(text(), font())), 0);
}

QRect PaintedLabel::bounds() const { return withEdge(place().united(textPlace())); }

// The text that the layout gives keeps to its place.
QRect PaintedLabel::ink() const { return isAsLaidOut() ? withEdge(place()) : bounds(); }

QRect PaintedLabel::core() const { return isAsLaidOut() ? place() : bounds(); }

// A pixel more for what italics and antialiasing put outside.
QRect PaintedLabel::withEdge(const QRect& text) const {
    const int more = edge() + 1;
    return text.adjusted(-more, -more, more, more);
}

// What is laid out dark has a light ground: a pale text would be lost on it without a dark edge.
void PaintedLabel::paint(QPainter& painter) const {
    const QColor colour = toQt(stored<Runtime::StoredLabel>().colour);
    const QColor laidOut = toQt(looks().text);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(font());
    if (isPale(colour) && !isPale(laidOut)) paintEdge(painter, laidOut);
    painter.setPen(colour);
    paintText(painter);
}

void PaintedLabel::paintEdge(QPainter& painter, QColor colour) const {
    painter.setPen(colour);
    for (const int x : {-edge(), 0, edge()}) {
        for (const int y : {-edge(), 0, edge()}) {
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
