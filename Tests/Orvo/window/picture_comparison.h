#pragma once

#include <vector>

#include <QImage>

namespace Orvo::Window {

/// How a picture differs from another of the same size.
struct Difference {
    /// The largest difference of a spot's mean colour, 0 to 255 in the channel that differs most;
    /// in spots that have text in them, and in the others.
    int inText = 0;
    int elsewhere = 0;
    /// By how many pixels a text has moved at most, as far as one looks.
    int shift = 0;
    /// The largest difference of the mean colours of a text's place.
    int tint = 0;
    /// Where: the brighter, the more.
    QImage picture;
};

/// Looks at spots of a few pixels as a whole, since another hinting of a font moves the edges of
/// glyphs, and changes nothing where there is no text.
Difference differenceOf(const QImage& actual, const QImage& reference,
                        const std::vector<QRect>& texts);

/// Whether it is no more than what another hinting makes.
bool isHinting(const Difference& difference);

}  // namespace Orvo::Window
