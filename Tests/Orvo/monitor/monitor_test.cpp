#include "Orvo/monitor/volume.h"
#include "Orvo/values/indexed.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Monitor = PanelTest;

TEST_F(Monitor, LightsExactlyTheLampOfAFlagAndIndex) {
    using I = MarvaneAssistantInterface;
    using Lamps = std::vector<Widgets::WidgetId>;
    const struct {
        void (I::*set)(Integer, Boolean);
        int first;
        Lamps lamps;
    } kRows[] = {
        {&I::Protection,
         0,
         {kCommon.protectionLamp, channel(1).protectionLamp, channel(2).protectionLamp,
          channel(3).protectionLamp, channel(4).protectionLamp}},
        {&I::Signal,
         1,
         {channel(1).signalLamp, channel(2).signalLamp, channel(3).signalLamp,
          channel(4).signalLamp}},
        {&I::Clock, 1, {pair(1).clockLamp, pair(2).clockLamp}},
        {&I::Ready, 1, {pair(1).readyLamp, pair(2).readyLamp}},
    };
    const auto lit = [this] {
        Lamps lamps;
        for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
            const auto& style = Layout::describe(id).style;
            const bool isLamp = style.kind == Layout::Kind::shape && !style.isSolid;
            if (isLamp && isLit({id})) lamps.push_back(id);
        }
        return lamps;
    };
    for (const auto& row : kRows) {
        for (Integer index = -1; index <= 5; ++index) {
            const auto* lamp = entry(row.lamps, index, row.first);
            (panel_.*row.set)(index, Boolean(Integer{1}));
            EXPECT_EQ(lit(), lamp != nullptr ? Lamps{*lamp} : Lamps())
                << row.lamps.back() << ' ' << index;
            (panel_.*row.set)(index, kFalse);
            EXPECT_EQ(lit(), Lamps()) << row.lamps.back() << ' ' << index;
        }
    }
}

TEST(Volume, AndPositionStandForEachOther) {
    for (Integer volume = -30; volume <= 30; volume += 2) {
        EXPECT_EQ(volumeAt(sliderPosition(volume)), volume);
        EXPECT_EQ(volumeAt(sliderPosition(static_cast<Integer>(volume - 1))), volume);
    }
    EXPECT_EQ(errorOf([] { volumeAt(-16400); }), 6);
}

}  // namespace
}  // namespace Orvo::Tests
