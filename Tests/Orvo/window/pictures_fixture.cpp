#include "pictures_fixture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <numbers>
#include <string>

#include <QDir>
#include <QRegion>
#include <QTest>

namespace Orvo::Window {
namespace {

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

// Looks at spots of a few pixels as a whole, since another hinting of a font moves the edges of
// glyphs, and changes nothing where there is no text.
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

// Whether it is no more than what another hinting makes.
bool isHinting(const Difference& difference) {
    return difference.inText <= 50 && difference.elsewhere <= 8 && difference.shift <= 1 &&
           difference.tint <= 5;
}

IntegerArray trace(int periods) {
    std::vector<Integer> samples(200);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * std::numbers::pi * periods * double(i) / double(samples.size());
        samples[i] = Integer(128 + 100 * std::sin(angle));
    }
    return {1, samples};
}

}  // namespace

void expectAsKept(const char* name, const QImage& actual, const std::vector<QRect>& texts) {
    const QString kept = QString(ORVO_PICTURES "/%1.png").arg(name);
    if (std::getenv("ORVO_ACCEPT") != nullptr) actual.save(kept);
    const QImage reference = QImage(kept).convertToFormat(QImage::Format_RGB32);
    const QString left = QString(ORVO_OUTPUT "/%1-").arg(name);
    QDir().mkpath(ORVO_OUTPUT);
    actual.save(left + "actual.png");
    ASSERT_EQ(actual.size(), reference.size()) << "see " << qPrintable(left) << "actual.png";
    const Difference difference = differenceOf(actual, reference, texts);
    difference.picture.save(left + "difference.png");
    EXPECT_TRUE(isHinting(difference))
        << "text " << difference.inText << ", elsewhere " << difference.elsewhere
        << ", text moved by " << difference.shift << " and tinted by " << difference.tint
        << "; see " << qPrintable(left) << "*.png";
}

PicturesTest::PicturesTest() {
    panel_.Connected(true);
    panel_.MainPresence(true);
    panel_.PowerOn(true);
    for (Integer channel = 1; channel <= 4; ++channel) showChannel(channel);
    panel_.chkTest(1, true);
    panel_.AggiugiTesto(u"00:00:07  Connected");
    panel_.AggiugiTesto(u"00:01:12  Protection of channel 2");
    widget_.show();
    widget_.activateWindow();
    if (!QTest::qWaitForWindowActive(&widget_)) ADD_FAILURE() << "the window stays inactive";
}

void PicturesTest::showChannel(Integer channel) {
    const auto number = [channel](int first, int step) { return Integer(first + step * channel); };
    panel_.VPPower(channel, number(80, 1));
    panel_.VNPower(channel, number(70, 2));
    panel_.VPAux(channel, number(10, 1));
    panel_.VNAux(channel, number(14, 1));
    panel_.Volume(channel, number(0, -7));
    panel_.VolumeSlider(channel, number(0, -7));
    panel_.Temperature(channel, number(20, 23));
    panel_.Mute(channel, channel == 3);
    panel_.Protection(channel, channel == 2);
    panel_.Signal(channel, channel % 2 == 1);
    panel_.Ready(channel, true);
    panel_.Clock(channel, channel != 4);
    panel_.DisegnaFormaDOnda(channel, trace(channel));
}

QImage PicturesTest::picture(int tab) {
    store_.perform(Runtime::Deed::tab(Layout::kTabs.id, tab));
    widget_.flush();
    return widget_.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

}  // namespace Orvo::Window
