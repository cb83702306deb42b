#include "Orvo/values/indexed.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Monitor = PanelTest;

TEST_F(Monitor, LightsExactlyTheLampOfAFlagAndIndex) {
    using I = MarvaneAssistantInterface;
    using Lamps = std::vector<Widgets::WidgetId>;
    const auto lit = [this] {
        Lamps lamps;
        for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
            const auto& style = Layout::describe(id).style;
            const bool isLamp = style.kind == Layout::Kind::shape && !style.isSolid;
            if (isLamp && isLit({id})) lamps.push_back(id);
        }
        return lamps;
    };
    for (Integer index = -1; index <= 5; ++index) {
        const auto expectLit = [&](void (I::*set)(Integer, Boolean), const Lamps& lamps) {
            (panel_.*set)(index, Boolean(Integer{1}));
            EXPECT_EQ(lit(), lamps) << index;
            (panel_.*set)(index, kFalse);
            EXPECT_EQ(lit(), Lamps()) << index;
        };
        const auto* channel = entry(Layout::kChannels, index);
        const auto* pair = entry(Layout::kPairs, index);
        const Lamps all = index == 0 ? Lamps{kCommon.protectionLamp} : Lamps();
        expectLit(&I::Protection, channel != nullptr ? Lamps{channel->protectionLamp} : all);
        expectLit(&I::Signal, channel != nullptr ? Lamps{channel->signalLamp} : Lamps());
        expectLit(&I::Clock, pair != nullptr ? Lamps{pair->clockLamp} : Lamps());
        expectLit(&I::Ready, pair != nullptr ? Lamps{pair->readyLamp} : Lamps());
    }
}

}  // namespace
}  // namespace Orvo::Tests
