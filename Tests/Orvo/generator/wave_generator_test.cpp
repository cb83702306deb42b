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

    [[nodiscard]] Lines litOf(std::size_t pair) const {
        Lines lines;
        for (const Channel& channel : std::span(Layout::kChannels).subspan(2 * pair, 2)) {
            lines.merge(linesOf(channel.positive));
            lines.merge(linesOf(channel.negative));
            lines.insert(channel.output);
        }
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
    for (const auto& [channel, input] : kRows) {
        const Input& chosen = Layout::kChannels[channel].*input;
        SCOPED_TRACE(Layout::describe(chosen.option).name);
        const Lines other = litOf(1 - channel / 2);
        store_.perform(Deed::click(chosen.option));
        Lines expected = linesOf(chosen);
        expected.insert(Layout::kChannels[channel].output);
        EXPECT_EQ(litOf(channel / 2), expected);
        EXPECT_EQ(litOf(1 - channel / 2), other);
    }
}

}  // namespace
}  // namespace Orvo::Tests
