#include "Artwork/Maker/bitmap.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Artwork/Maker/bytes.h"

namespace Orvo::Artwork {

namespace {

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;

enum Compression : std::uint32_t { none = 0, bitFields = 3 };

// `table` is what stands between the headers and the pixels: masks or a palette.
QByteArray bitmapFile(QSize size, std::uint16_t depth, Compression compression,
                      const QByteArray& table, const QByteArray& pixels) {
    const auto offset = std::uint32_t(kFileHeader + kInfoHeader + table.size());
    const auto colours = std::uint32_t(compression == none ? table.size() / 4 : 0);
    constexpr std::int32_t kPixelsPerMetre = 3780;  // 96 dots per inch
    Bytes file;
    file.add(QByteArray("BM")).add(offset + std::uint32_t(pixels.size()), 0U, offset);
    file.add(kInfoHeader, size.width(), size.height(), std::uint16_t{1}, depth);
    file.add(std::uint32_t(compression), std::uint32_t(pixels.size()));
    file.add(kPixelsPerMetre, kPixelsPerMetre, colours, colours);
    return file.add(table).add(pixels).all();
}

QList<QRgb> palette() {
    QList<QRgb> colours;
    for (const int level : {128, 255}) {
        for (int bits = 0; bits < 8; ++bits) {
            const auto share = [&](int bit) { return (bits & bit) != 0 ? level : 0; };
            colours.append(qRgb(share(1), share(2), share(4)));
        }
    }
    colours[7] = qRgb(192, 192, 192);
    colours[8] = qRgb(128, 128, 128);  // black is there already
    return colours;
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

std::uint8_t nearest(QRgb colour, const QList<QRgb>& colours) {
    const auto found = std::min_element(colours.begin(), colours.end(), [colour](QRgb a, QRgb b) {
        return distance(a, colour) < distance(b, colour);
    });
    return std::uint8_t(found - colours.begin());
}

// Few levels make bands of a gradual light, unless neighbours share what lies between two levels.
std::uint16_t dithered(QRgb colour, int x, int y) {
    constexpr auto kThresholds =
        std::to_array<int>({0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5});
    const int threshold = kThresholds[static_cast<std::size_t>(y % 4 * 4 + x % 4)];
    const auto level = [threshold](int value, int highest) {
        return (value * highest * 16 / 255 + threshold) / 16;
    };
    return std::uint16_t(level(qRed(colour), 31) << 11 | level(qGreen(colour), 63) << 5 |
                         level(qBlue(colour), 31));
}

}  // namespace

// A bitmap's rows begin with the lowest, here as below.
QByteArray bitmapOf16Bits(const QImage& image) {
    Bytes rows;
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) rows.add(dithered(image.pixel(x, y), x, y));
        rows.padTo(4);
    }
    const Bytes masks = Bytes().add(0xF800U, 0x07E0U, 0x001FU);
    return bitmapFile(image.size(), 16, bitFields, masks.all(), rows.all());
}

QByteArray bitmapOf16Colours(const QImage& image) {
    const QList<QRgb> colours = palette();
    Bytes table;
    for (const QRgb colour : colours) table.add(colour & 0xFFFFFFU);
    Bytes rows;
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); x += 2) {
            const std::uint8_t left = nearest(image.pixel(x, y), colours);
            const bool isLast = x + 1 == image.width();
            const std::uint8_t right = isLast ? 0 : nearest(image.pixel(x + 1, y), colours);
            rows.add(std::uint8_t(left << 4 | right));
        }
        rows.padTo(4);
    }
    return bitmapFile(image.size(), 4, none, table.all(), rows.all());
}

}  // namespace Orvo::Artwork
