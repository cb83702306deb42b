#include <algorithm>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Routing = PanelTest;

TEST_F(Routing, HighlightsOneRouteOfItsPairAndLeavesTheOtherPairAlone) {
    const struct {
        const char* option;
        const char* route;
        const char* selector;
        const char* channelLine;
    } kRows[] = {
        {"optN1", "lin1n", "lin1NSelect", "lin1"}, {"optP2", "lin2p", "lin2PSelect", "lin2"},
        {"optN2", "lin2n", "lin2NSelect", "lin2"}, {"optP1", "lin1p", "lin1PSelect", "lin1"},
        {"optN3", "lin3n", "lin3NSelect", "lin3"}, {"optP4", "lin4p", "lin4Pselect", "Lin4"},
        {"optN4", "lin4n", "lin4NSelect", "Lin4"}, {"optP3", "lin3p", "lin3PSelect", "lin3"},
    };
    const auto lit = [this](int tab) {
        std::vector<std::string> names;
        for (const auto& widget : Layout::kWidgets) {
            const bool isRoute = widget.name.starts_with("lin") || widget.name.starts_with("Lin4");
            if (widget.tab != tab || !isRoute) continue;
            const auto& line = store_.get<Runtime::StoredLine>(id(widget.name));
            const bool isWhite = line.state().colour == rgb(255, 255, 255);
            if (line.isVisible() && isWhite) names.emplace_back(widget.name);
        }
        std::sort(names.begin(), names.end());
        return names;
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.option);
        const int tab = Layout::describe(id(row.selector)).tab;
        const auto other = lit(3 - tab);
        person_.click(id(row.option));
        std::vector<std::string> expected{row.selector, row.channelLine};
        for (int i = 0; i < 5; ++i) {
            expected.push_back(row.route + ("(" + std::to_string(i) + ")"));
        }
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(lit(tab), expected);
        EXPECT_EQ(lit(3 - tab), other);
    }
}

}  // namespace
}  // namespace Orvo::Tests
