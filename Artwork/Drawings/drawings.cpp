#include "Artwork/Drawings/drawings.h"

#include <QPainter>

namespace Orvo::Artwork {

void paint(QPainter& painter, const Drawing& drawing, const QRectF& where) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(where.topLeft());
    painter.scale(where.width() / drawing.place.width(), where.height() / drawing.place.height());
    painter.translate(-drawing.place.topLeft());
    drawing.draw(painter);
    painter.restore();
}

}  // namespace Orvo::Artwork
