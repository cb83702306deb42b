#pragma once

#include <QByteArray>
#include <QImage>

namespace Orvo::Artwork {

/// A bitmap file with 16 bits for each pixel: 5 of red, 6 of green, 5 of blue.
QByteArray bitmapOf16Bits(const QImage& image);

/// A bitmap file with the sixteen colours that every display has; others become the nearest.
QByteArray bitmapOf16Colours(const QImage& image);

}  // namespace Orvo::Artwork
