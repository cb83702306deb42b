#include "Orvo/window/drawing/kept_picture.h"

#include <QPainter>
#include <QPixmapCache>
#include <QtMath>

namespace Orvo::Window {

void KeptPicture::paint(QPainter& painter, const QRect& place, const Drawing& drawing) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QPointF corner = painter.deviceTransform().map(QPointF(place.topLeft()));
    const QPointF phase(corner.x() - qFloor(corner.x()), corner.y() - qFloor(corner.y()));
    if (picture_.isNull() || picture_.devicePixelRatio() != ratio || phase_ != phase) {
        phase_ = phase;
        find(place, ratio, drawing);
    }
    painter.drawPixmap(place.topLeft() - phase_ / ratio, picture_);
}

// What is too large for the cache is its holder's alone.
void KeptPicture::find(const QRect& place, double ratio, const Drawing& drawing) {
    const QSize size(qCeil(place.width() * ratio + phase_.x()),
                     qCeil(place.height() * ratio + phase_.y()));
    const QString key = QString("Orvo %1 %2 %3 %4 %5 ")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio)
                            .arg(phase_.x())
                            .arg(phase_.y()) +
                        drawing.key();
    if (QPixmapCache::find(key, &picture_)) return;
    picture_ = QPixmap(size);
    picture_.setDevicePixelRatio(ratio);
    picture_.fill(drawing.ground);
    QPainter painter(&picture_);
    painter.translate(phase_ / ratio - place.topLeft());
    drawing.draw(painter);
    painter.end();
    QPixmapCache::insert(key, picture_);
}

}  // namespace Orvo::Window
