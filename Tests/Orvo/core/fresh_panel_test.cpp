#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using FreshPanel = PanelTest;

TEST_F(FreshPanel, IsDarkAndUnset) {
    using Layout::Kind;
    for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        const auto& style = Layout::describe(id).style;
        const auto name = Layout::describe(id).name;
        EXPECT_TRUE(style.kind != Kind::shape || isLit({id}) == style.isSolid) << name;
        EXPECT_TRUE(style.kind != Kind::check || !isChecked({id})) << name;
        if (style.kind != Kind::digit) continue;
        EXPECT_FALSE(store_.get<Runtime::StoredDigit>(id).state().digit) << name;
    }
    for (Integer row = 0; row <= 5; ++row) {
        EXPECT_EQ(caption(kCommon.testResults.at(row)), u"-");
    }
    for (Integer row = 0; row <= 5; ++row) EXPECT_EQ(panel_.chkTest(row), kFalse);
}

}  // namespace
}  // namespace Orvo::Tests
