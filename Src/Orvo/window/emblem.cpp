#include "Orvo/window/emblem.h"

#include <QPainter>
#include <QPixmap>

#include "Artwork/Drawings/drawings.h"

namespace Orvo::Window {

QIcon emblem() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        Artwork::paint(painter, Artwork::kEmblem, picture.rect());
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace Orvo::Window
