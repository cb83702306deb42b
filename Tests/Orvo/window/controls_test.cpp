#include <QApplication>
#include <QHoverEvent>
#include <QTabBar>

#include "Orvo/window/controls/value_bubble.h"
#include "window_fixture.h"

namespace Orvo::Window {
namespace {

class ControlsTest : public WindowTest {};

TEST_F(ControlsTest, EveryControlIsWhereTheLayoutHasItAndAsTheStoreSays) {
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        const auto& widget = Layout::describe(id);
        const auto* shown = front_.control(id);
        if (shown == nullptr) continue;
        SCOPED_TRACE(widget.name);
        EXPECT_EQ(shown->geometry(), Scale(1).rect(id));
        EXPECT_EQ(shown->isVisibleTo(shown->parentWidget()), store_.isShown(id));
        EXPECT_EQ(shown->isEnabled(), store_.acceptsInput(id));
        const bool hasWords = widget.style.kind == Layout::Kind::picture ||
                              !shown->accessibleName().isEmpty() || !store_.isShown(id);
        EXPECT_TRUE(hasWords) << "nothing to read out";
    }
}

TEST_F(ControlsTest, TheKeyboardStopsOnceInAGroupOfOptions) {
    const auto stops = [&] {
        std::vector<WidgetId> options;
        for (const auto option : {channel(1).positive.option, channel(1).negative.option,
                                  channel(2).positive.option, channel(2).negative.option}) {
            if (control(option).focusPolicy() == Qt::StrongFocus) options.push_back(option);
        }
        return options;
    };
    EXPECT_EQ(stops().size(), 4U) << "none is selected yet";
    store_[channel(2).negative.option].setValue(true);
    settle();
    EXPECT_EQ(stops(), std::vector<WidgetId>{channel(2).negative.option});
}

TEST_F(ControlsTest, ABubbleSaysAFadersValueBesideItsCapWhileItIsHeld) {
    toTab(1);
    store_[pair(1).testSlider].setMaximum(100);
    const auto bubble = [&] { return front_.findChild<ValueBubble*>(); };
    const struct {
        WidgetId slider;
        int position;
        const char* said;
        int above;
        const char* saidAbove;
    } kCases[] = {
        {channel(1).volumeSlider, 13, "4 dB", 4, "22 dB"},
        {channel(2).volumeSlider, 20, "-10 dB", 0, "30 dB"},
        {pair(1).testSlider, 37, "37 °C", 90, "90 °C"},
    };
    for (const auto& [slider, position, said, above, saidAbove] : kCases) {
        const auto moveTo = [&, slider = slider](int to) {
            store_.perform(Runtime::Deed::move(slider, to));
            settle();
        };
        moveTo(position);
        EXPECT_EQ(bubble(), nullptr) << "nobody holds it";
        store_.perform(Runtime::Deed::hold(slider));
        settle();
        ASSERT_NE(bubble(), nullptr) << said;
        EXPECT_EQ(bubble()->value(), said);
        const QRect before = bubble()->geometry();
        EXPECT_TRUE(front_.rect().contains(before));
        moveTo(above);
        EXPECT_EQ(bubble()->value(), saidAbove);
        EXPECT_LT(bubble()->geometry().bottom(), before.bottom());
        store_.perform(Runtime::Deed::drop(slider));
        settle();
    }
    EXPECT_EQ(bubble(), nullptr);
}

TEST_F(ControlsTest, ATabBehindStandsOutWhileThePointerIsOnIt) {
    auto& strip = control<QTabBar>(Layout::kTabs);
    for (const int tab : {0, 1}) {
        const QImage before = strip.grab().toImage();
        const QPointF place = strip.tabRect(tab).center();
        QHoverEvent pointing(QEvent::HoverMove, place, place, place);
        QApplication::sendEvent(&strip, &pointing);
        EXPECT_EQ(strip.grab().toImage() != before, tab == 1) << tab;
    }
}

TEST_F(ControlsTest, AnIdThatHasNoRoomIsNotCutIntoAnother) {
    QImage pictures[2];
    for (const int digits : {12, 40}) {
        store_[kCommon.amplifierIds].setText(String(std::size_t(digits), u'8'));
        settle();
        pictures[digits == 40] = control(kCommon.amplifierIds).grab().toImage();
    }
    store_[kCommon.amplifierIds].setText(u"8888");
    settle();
    EXPECT_EQ(pictures[0], pictures[1]) << "both end with the sign that more is missing";
    EXPECT_NE(control(kCommon.amplifierIds).grab().toImage(), pictures[0]);
}

TEST_F(ControlsTest, TheHourglassShowsAtOnce) {
    store_.mousePointer().setPointer(Widgets::Pointer::hourglass);
    EXPECT_EQ(front_.cursor().shape(), Qt::WaitCursor);
    store_.mousePointer().setPointer(Widgets::Pointer::standard);
    EXPECT_EQ(front_.cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace Orvo::Window
