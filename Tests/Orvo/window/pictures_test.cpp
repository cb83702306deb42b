#include <algorithm>

#include <QLocale>

#include "pictures_fixture.h"

namespace Orvo::Window {
namespace {

using Layout::Kind;

bool hasText(Kind kind) {
    const auto kinds = {Kind::label, Kind::button,  Kind::combo,
                        Kind::list,  Kind::picture, Kind::tabs};
    return std::ranges::find(kinds, kind) != kinds.end();
}

class TabPicturesTest : public PicturesTest {
protected:
    /// The places of what has text in it.
    [[nodiscard]] std::vector<QRect> places(int tab) const {
        std::vector<QRect> found;
        for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
            const bool isThere = pageOf(id) == tab && store_.isShown(id);
            if (isThere && hasText(Layout::describe(id).style.kind))
                found.push_back(Scale(1).rect(id));
        }
        return found;
    }
};

TEST_F(TabPicturesTest, LookAsTheyDid) {
    const char* const names[] = {"common", "channels-1-2", "channels-3-4"};
    for (int tab = 0; tab < 3; ++tab) {
        auto texts = places(tab);
        texts.emplace_back(0, 0, widget_.width(), 25);                        // the tabs' own
        if (tab == 0) texts.push_back(Scale(1).rect(9600, 1900, 600, 2900));  // wider than laid out
        expectAsKept(names[tab], picture(tab), texts);
    }
}

class PanelAbroad final : public PicturesTest {
public:
    static std::array<QImage, 3> pictures(const QLocale& country) {
        QLocale::setDefault(country);
        PanelAbroad panel;
        return {panel.picture(0), panel.picture(1), panel.picture(2)};
    }

private:
    void TestBody() override {}
};

TEST(CountriesTest, NoneChangesAFigure) {
    const auto known = PanelAbroad::pictures(QLocale::c());
    for (const char* country : {"de_DE", "it_IT", "ar_EG"})
        EXPECT_EQ(PanelAbroad::pictures(QLocale(country)), known) << country;
    QLocale::setDefault(QLocale::c());
}

}  // namespace
}  // namespace Orvo::Window
