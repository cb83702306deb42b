#include <algorithm>

#include <QPainter>

#include "picture_comparison.h"
#include "pictures_fixture.h"

namespace Orvo::Window {
namespace {

using Layout::Kind;

bool hasText(Kind kind) {
    const auto kinds = {Kind::label, Kind::button,  Kind::combo,
                        Kind::list,  Kind::picture, Kind::tabs};
    return std::ranges::find(kinds, kind) != kinds.end();
}

bool hasPlace(Kind kind) {
    return kind != Kind::line && kind != Kind::timer && kind != Kind::image;
}

class TabPicturesTest : public PicturesTest {
protected:
    /// The places of those widgets on the tab that can be seen.
    [[nodiscard]] std::vector<QRect> places(int tab, bool (*isWanted)(Kind)) const {
        std::vector<QRect> found;
        for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
            const bool isThere = pageOf(id) == tab && store_.isShown(id);
            if (isThere && isWanted(Layout::describe(id).style.kind))
                found.push_back(Scale(1).rect(id));
        }
        return found;
    }
};

TEST_F(TabPicturesTest, LookAsTheyDid) {
    const char* const names[] = {"common", "channels-1-2", "channels-3-4"};
    for (int tab = 0; tab < 3; ++tab) {
        auto texts = places(tab, &hasText);
        texts.emplace_back(0, 0, widget_.width(), 25);                        // the tabs' own
        if (tab == 0) texts.push_back(Scale(1).rect(9600, 1900, 600, 2900));  // wider than laid out
        expectAsKept(names[tab], picture(tab), texts);
    }
}

TEST_F(TabPicturesTest, ShowWhenAWidgetMoves) {
    for (int tab = 0; tab < 3; ++tab) {
        const QImage whole = picture(tab);
        for (const QRect& place : places(tab, &hasPlace)) {
            const QRect around = place.adjusted(-12, -12, 12, 12) & whole.rect();
            QImage moved = whole;
            QPainter(&moved).drawImage(place.topLeft() + QPoint(2, 0), whole, place);
            if (moved == whole) continue;
            const Difference difference = differenceOf(moved.copy(around), whole.copy(around),
                                                       {place.translated(-around.topLeft())});
            EXPECT_FALSE(isHinting(difference)) << tab << ": " << place.x() << ", " << place.y();
        }
    }
}

}  // namespace
}  // namespace Orvo::Window
