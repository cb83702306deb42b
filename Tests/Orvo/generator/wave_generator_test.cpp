#include <set>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Layout::Channel;
using Layout::Input;

class Routing : public PanelTest {
protected:
    using Lines = std::set<Widgets::WidgetId>;

    static Lines linesOf(const Input& input) {
        Lines lines{input.selector};
        for (Integer i = 0; i < 5; ++i) lines.insert(input.segments.at(i));
        return lines;
    }

    [[nodiscard]] Lines lit(const Channel& channel) const {
        Lines lines = linesOf(channel.positive);
        lines.merge(linesOf(channel.negative));
        lines.insert(channel.output);
        std::erase_if(lines, [this](auto id) {
            const auto& line = store_.get<Runtime::StoredLine>(id);
            return !line.isVisible() || line.state().colour != rgb(255, 255, 255);
        });
        return lines;
    }
};

TEST_F(Routing, HighlightsOneRouteOfItsPairAndLeavesTheOtherPairAlone) {
    const struct {
        std::size_t channel;
        Input Channel::*input;
    } kRows[] = {{0, &Channel::negative}, {1, &Channel::positive}, {1, &Channel::negative},
                 {0, &Channel::positive}, {2, &Channel::negative}, {3, &Channel::positive},
                 {3, &Channel::negative}, {2, &Channel::positive}};
    const auto& all = Layout::kChannels;
    for (const auto& row : kRows) {
        const Input& input = all[row.channel].*row.input;
        SCOPED_TRACE(Layout::describe(input.option).name);
        const std::size_t other = (row.channel + 2) % 4;
        const std::array before{lit(all[other]), lit(all[other ^ 1U])};
        person_.click(input.option);
        Lines expected = linesOf(input);
        expected.insert(all[row.channel].output);
        EXPECT_EQ(lit(all[row.channel]), expected);
        EXPECT_EQ(lit(all[row.channel ^ 1U]), Lines());
        EXPECT_EQ((std::array{lit(all[other]), lit(all[other ^ 1U])}), before);
    }
}

}  // namespace
}  // namespace Orvo::Tests
