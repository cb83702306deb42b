#include "Orvo/window/drawing/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"
#include "pictures_fixture.h"

namespace Orvo::Window {
namespace {

using Layout::Kind;

/// What a person sees of linear red, green and blue: Viénot, Brettel and Mollon, "Digital video
/// colourmaps for checking the legibility of displays by dichromats" (Color Research and
/// Application 24, 1999), from display to cones and back; with no colours, the luminance.
struct Vision {
    const char* label;
    std::array<std::array<double, 3>, 3> seen;

    [[nodiscard]] double luminanceOf(QColor colour) const {
        constexpr std::array kShares{0.2126, 0.7152, 0.0722};
        double sum = 0;
        for (std::size_t row = 0; row < 3; ++row) {
            const auto& [red, green, blue] = seen[row];
            sum += kShares[row] *
                   std::clamp(red * lightOf(colour.red()) + green * lightOf(colour.green()) +
                                  blue * lightOf(colour.blue()),
                              0.0, 1.0);
        }
        return sum;
    }
};

constexpr auto kVisions = std::to_array<Vision>({
    {"trichromat", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanope", {{{0.11238, 0.88762, 0}, {0.11238, 0.88762, 0}, {0.00401, -0.00401, 1}}}},
    {"deuteranope", {{{0.29275, 0.70725, 0}, {0.29275, 0.70725, 0}, {-0.02234, 0.02234, 1}}}},
    {"achromat", {{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}}},
});

bool isLamp(WidgetId id) {
    const Layout::Style& style = Layout::describe(id).style;
    return style.outline == Layout::Outline::circle && style.fill != style.back;
}

/// The mean luminance at each whole distance from the middle.
std::vector<double> profileOf(const QImage& lamp, const Vision& vision) {
    const QPointF middle((lamp.width() - 1) / 2.0, (lamp.height() - 1) / 2.0);
    std::vector<double> sums(std::size_t(std::min(lamp.width(), lamp.height()) / 2));
    std::vector<int> counts(sums.size());
    for (int y = 0; y < lamp.height(); ++y) {
        for (int x = 0; x < lamp.width(); ++x) {
            const auto ring = std::size_t(std::hypot(x - middle.x(), y - middle.y()));
            if (ring >= sums.size()) continue;
            sums[ring] += vision.luminanceOf(lamp.pixelColor(x, y));
            ++counts[ring];
        }
    }
    std::ranges::transform(sums, counts, sums.begin(), std::divides());
    return sums;
}

/// What half of the pixels close around the text in the place reach at least, as the rest
/// may be a neighbour's; 1 without any text.
double contrastOfText(const QImage& picture, const QRect& place, QColor text) {
    constexpr int kClose = 3;  // pixels, beyond the antialiased ones
    const auto colourAt = [&](int x, int y) { return picture.pixelColor(x, y); };
    QRect bounds;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if (colourAt(x, y) == text) bounds |= QRect(x, y, 1, 1);
        }
    }
    if (bounds.isNull()) return 1;
    const QRect around = bounds.adjusted(-kClose, -kClose, kClose, kClose) & picture.rect();
    std::vector<double> found;
    const auto look = [&](int x, int y) { found.push_back(contrastOf(colourAt(x, y), text)); };
    for (int x = around.left(); x <= around.right(); ++x) {
        for (const int y : {around.top(), around.bottom()}) look(x, y);
    }
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (const int x : {around.left(), around.right()}) look(x, y);
    }
    std::ranges::sort(found);
    return found[found.size() / 2];
}

class ContrastTest : public PicturesTest {
protected:
    using Pictures = std::array<QImage, 3>;

    Pictures pictures() { return {picture(0), picture(1), picture(2)}; }

    Pictures withLamps(Widgets::FillStyle fill) {
        for (const WidgetId id : Layout::kAll<Kind::shape>) {
            if (isLamp(id)) store_[Widgets::ShapeRef{id}].setFillStyle(fill);
        }
        return pictures();
    }

    void expectReadableLabels() {
        const Pictures pictures = this->pictures();
        for (const WidgetId id : Layout::kAll<Kind::label>) {
            const auto& label = store_.get<Runtime::StoredLabel>(id).state();
            if (!store_.isShown(id) || label.caption.empty()) continue;
            PaintedLabel painted(store_, id);
            painted.layOut(Scale(widget_.zoom()));
            const QImage& picture = pictures[std::size_t(pageOf(id))];
            const QRect place = painted.bounds() & picture.rect();
            EXPECT_GE(contrastOfText(picture, place, toQt(label.colour)), kTextContrast)
                << Layout::describe(id).name << " " << qPrintable(toQt(label.caption));
        }
    }
};

TEST_F(ContrastTest, ALitLampHasACoreThatEverybodyTellsFromADarkLampAndFromItsRim) {
    for (const double zoom : {1, 2, 4}) {
        widget_.setZoom(zoom);
        const Pictures allLit = withLamps(Widgets::FillStyle::solid);
        const Pictures allDark = withLamps(Widgets::FillStyle::transparent);
        for (const WidgetId id : Layout::kAll<Kind::shape>) {
            if (!isLamp(id)) continue;
            const auto page = std::size_t(pageOf(id));
            const QRect place = Scale(zoom).rect(id);
            for (const Vision& vision : kVisions) {
                SCOPED_TRACE(std::string(Layout::describe(id).name) + ", " + vision.label);
                const auto lit = profileOf(allLit[page].copy(place), vision);
                const auto dark = profileOf(allDark[page].copy(place), vision);
                const double rim = *std::ranges::min_element(lit);
                EXPECT_GE(contrastBetween(lit[0], dark[0]), kShapeContrast) << "at zoom " << zoom;
                EXPECT_GE(contrastBetween(lit[0], rim), kShapeContrast) << "at zoom " << zoom;
            }
        }
    }
}

TEST_F(ContrastTest, ALitSegmentIsToldFromWhatIsAroundIt) {
    constexpr int kZoom = 4;
    constexpr int kBeside = 2;  // pixels, beyond the antialiased one
    widget_.setZoom(kZoom);
    for (const WidgetId id : Layout::kAll<Kind::digit>) store_[Widgets::DigitRef{id}].setDigit(8);
    const Pictures pictures = this->pictures();
    for (const WidgetId id : Layout::kAll<Kind::digit>) {
        const QImage& picture = pictures[std::size_t(pageOf(id))];
        const QRect place = Scale(kZoom).rect(id);
        const QColor lit = toQt(Layout::describe(id).style.text);
        QPoint at = place.topLeft() + QPoint(6 * kZoom, 0);
        while (place.contains(at) && picture.pixelColor(at) != lit) at.ry()++;
        const QColor beside = picture.pixelColor(at - QPoint(0, kBeside));
        EXPECT_TRUE(place.contains(at));
        EXPECT_GE(contrastOf(lit, beside), kShapeContrast) << Layout::describe(id).name;
    }
}

TEST_F(ContrastTest, EveryTextIsReadableInEachOfItsColours) {
    widget_.setZoom(4);
    const auto fillTests = [&](bool hasPassed) {
        for (Integer row = 0; row < 6; ++row) panel_.chkTest(row, hasPassed);
    };
    const std::function<void()> kStates[] = {
        [] {},
        [&] { panel_.Connected(false); },
        [&] { fillTests(true); },
        [&] { fillTests(false); },
        [&] { panel_.ClearTest(); },
    };
    for (const auto& bring : kStates) {
        bring();
        expectReadableLabels();
    }
}

}  // namespace
}  // namespace Orvo::Window
