#include "Artwork/Maker/pictures.h"

#include <array>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#if __has_include(<QSvgGenerator>)
#include <QSvgGenerator>
#endif

#include "Artwork/Drawings/drawings.h"
#include "Artwork/Maker/bitmap.h"
#include "Artwork/Maker/metafile.h"

namespace Orvo::Artwork {

namespace {

// A JPEG picture's subsampled colours would blur every edge below this.
constexpr int kJpegQuality = 95;

void paintOn(QPaintDevice& device, const Drawing& drawing) {
    QPainter painter(&device);
    paint(painter, drawing, QRectF(0, 0, device.width(), device.height()));
}

QImage imageOf(const Drawing& drawing, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    paintOn(image, drawing);
    return image;
}

QByteArray encoded(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}

QByteArray metafileOf(const Drawing& drawing, const char* title) {
    Metafile file(drawing.place.size().toSize());
    paintOn(file, drawing);
    return file.file(title);
}

template <int size>
QByteArray iconOf() {
    return encoded(imageOf(kEmblem, {size, size}), "PNG", -1);
}

#if __has_include(<QSvgGenerator>)
QByteArray svgOf(const Drawing& drawing, const char* title) {
    QBuffer buffer;
    QSvgGenerator file;
    file.setOutputDevice(&buffer);
    file.setSize(drawing.place.size().toSize());
    file.setViewBox(drawing.place);
    file.setTitle(title);
    file.setDescription("");
    paintOn(file, drawing);
    return buffer.data();
}
#endif

constexpr auto kPictures = std::to_array<Picture>({
    {"common-tab.bmp",
     [] {
         return bitmapOf16Bits(imageOf(kCommonTab, {629, 453}));
     }},
        {"pair-tab.jpg",
         [] {
             return encoded(imageOf(kPairTab, {700, 432}), "JPEG", kJpegQuality);
         }},
        {"power-up.emf", [] { return metafileOf(kPowerUp, "Power button, up"); }},
        {"power-down.emf", [] { return metafileOf(kPowerDown, "Power button, down"); }},
        {"toolbox.bmp",
         [] {
             return bitmapOf16Colours(imageOf(kToolbox, {16, 15}));
         }},
        {"marvane-manager-48.png", iconOf<48>}, {"marvane-manager-128.png", iconOf<128>},
        {"marvane-manager-256.png", iconOf<256>},
#if __has_include(<QSvgGenerator>)
        {"marvane-manager.svg", [] { return svgOf(kEmblem, "Marvane Manager"); }},
#endif
});

}  // namespace

std::span<const Picture> pictures() { return kPictures; }

}  // namespace Orvo::Artwork
