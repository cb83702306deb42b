#include "Orvo/window/controls/value_bubble.h"

#include <QPainter>
#include <QPainterPath>

#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

ValueBubble::ValueBubble(QWidget& page) : QWidget(&page) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    show();
}

void ValueBubble::say(const QString& value, QPointF at, double zoom) {
    value_ = value;
    setFont(toQt(Layout::kArial.bold(), zoom));
    const double tall = 18 * zoom;
    const double wide = widthOf(value, font()) + tall;
    setGeometry(QRectF(at.x() - wide, at.y() - tall / 2, wide, tall).toAlignedRect());
    update();
}

void ValueBubble::paintEvent(QPaintEvent*) {
    const QRectF all = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QRectF body = all.adjusted(0, 0, -tip(), 0);
    QPainterPath outline;
    outline.addRoundedRect(body, tip(), tip());
    QPainterPath pointer(QPointF(all.right(), all.center().y()));
    pointer.lineTo(body.right() - 1, all.center().y() - tip());
    pointer.lineTo(body.right() - 1, all.center().y() + tip());
    pointer.closeSubpath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Palette::kCapEdge);
    painter.setBrush(Palette::kBubble);
    painter.drawPath(outline.united(pointer));
    painter.setPen(Palette::kBubbleText);
    painter.drawText(body, Qt::AlignCenter, value_);
}

}  // namespace Orvo::Window
