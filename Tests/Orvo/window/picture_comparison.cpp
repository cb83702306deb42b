#include "picture_comparison.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include <QRegion>

namespace Orvo::Window {
namespace {

constexpr int kSpot = 4;      // pixels, both ways
constexpr int kFarthest = 3;  // pixels

QSize spotsOf(QSize size) {
    return {(size.width() + kSpot - 1) / kSpot, (size.height() + kSpot - 1) / kSpot};
}

QImage meansOf(const QImage& picture) {
    const QSize spots = spotsOf(picture.size());
    return picture.copy(QRect(QPoint(), spots * kSpot))
        .scaled(spots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int distance(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

QRgb meanOf(const QImage& picture) {
    return picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0);
}

void compareSpots(const QImage& one, const QImage& other, const QRegion& text, Difference& result) {
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int found = distance(one.pixel(x, y), other.pixel(x, y));
            const bool isText = text.intersects(QRect(x * kSpot, y * kSpot, kSpot, kSpot));
            int& largest = isText ? result.inText : result.elsewhere;
            largest = std::max(largest, found);
            result.picture.scanLine(y)[x] = static_cast<uchar>(std::min(255, 8 * found));
        }
    }
}

std::int64_t mismatch(const QImage& actual, const QImage& reference, const QRect& place,
                      QPoint shift) {
    std::int64_t sum = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            sum += distance(actual.pixel(QPoint(x, y) + shift), reference.pixel(x, y));
        }
    }
    return sum;
}

// By how much it is best moved to be where it was; the nearest of those that are equally good.
int shiftOf(const QImage& actual, const QImage& reference, const QRect& text) {
    const QRect place =
        text & reference.rect().adjusted(kFarthest, kFarthest, -kFarthest, -kFarthest);
    auto least = std::numeric_limits<std::int64_t>::max();
    int best = 0;
    for (int reach = 0; reach <= kFarthest; ++reach) {
        for (int y = -reach; y <= reach; ++y) {
            for (int x = -reach; x <= reach; ++x) {
                if (std::max(std::abs(x), std::abs(y)) != reach) continue;
                const auto found = mismatch(actual, reference, place, {x, y});
                if (found < least) best = reach;
                least = std::min(least, found);
            }
        }
    }
    return best;
}

}  // namespace

Difference differenceOf(const QImage& actual, const QImage& reference,
                        const std::vector<QRect>& texts) {
    QRegion text;
    for (const QRect& place : texts) text += place;
    Difference result;
    result.picture = QImage(spotsOf(reference.size()), QImage::Format_Grayscale8);
    compareSpots(meansOf(actual), meansOf(reference), text, result);
    result.picture = result.picture.scaled(reference.size());
    for (const QRect& place : texts) {
        result.shift = std::max(result.shift, shiftOf(actual, reference, place));
        result.tint = std::max(result.tint,
                               distance(meanOf(actual.copy(place)), meanOf(reference.copy(place))));
    }
    return result;
}

bool isHinting(const Difference& difference) {
    return difference.inText <= 50 && difference.elsewhere <= 8 && difference.shift <= 1 &&
           difference.tint <= 5;
}

}  // namespace Orvo::Window
