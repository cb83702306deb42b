#include <QFontMetricsF>
#include <QPainter>

#include "Orvo/window/drawing/contrast.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

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
    const int more = (needsBacking() ? backing() : 0) + scale().thickness(1) + 1;
    return text.adjusted(-more, -more, more, more);
}

// What the layout gives is readable on its ground: a dark text tells of a light one.
bool PaintedLabel::needsBacking() const {
    if (isAsLaidOut() || text().isEmpty()) return false;
    const bool isOnLight = contrastOf(toQt(looks().text), Palette::kLightGround) >= kTextContrast;
    const QColor ground = isOnLight ? Palette::kLightGround : Palette::kDarkGround;
    return contrastOf(toQt(stored<Runtime::StoredLabel>().colour), ground) < kTextContrast;
}

void PaintedLabel::paint(QPainter& painter) const {
    if (needsBacking()) paintBacking(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(font());
    painter.setPen(toQt(stored<Runtime::StoredLabel>().colour));
    paintText(painter);
}

// Around the capitals.
void PaintedLabel::paintBacking(QPainter& painter) const {
    const double high = QFontMetricsF(font()).capHeight();
    const QRectF capitals(place().left(), baseline() - high, widthOf(text(), font()), high);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::kBacking);
    const int more = backing();
    painter.drawRoundedRect(capitals.adjusted(-more, -more, more, more), more, more);
}

void PaintedLabel::paintText(QPainter& painter) const {
    if (looks().flow == Layout::TextFlow::line)
        return painter.drawText(QPointF(place().left(), baseline()), text());
    painter.drawText(place(), Qt::AlignCenter | Qt::TextWordWrap | Qt::TextDontClip, text());
}

}  // namespace Orvo::Window
