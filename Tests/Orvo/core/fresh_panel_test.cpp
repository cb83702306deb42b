#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using FreshPanel = PanelTest;

TEST_F(FreshPanel, IsDarkAndUnset) {
    using Layout::Kind;
    for (const auto& widget : Layout::kWidgets) {
        const std::string_view name = widget.name;
        const Kind kind = widget.style.kind;
        EXPECT_TRUE(kind != Kind::shape || isLit(name) == widget.style.isSolid) << name;
        EXPECT_TRUE(kind != Kind::digit || digits({name}) == "_") << name;
        EXPECT_TRUE(kind != Kind::check || !isChecked(name)) << name;
        EXPECT_TRUE(!name.starts_with("lblTestResult") || caption(name) == u"-") << name;
    }
    for (Integer row = 0; row <= 5; ++row) EXPECT_EQ(panel_.chkTest(row), kFalse);
}

}  // namespace
}  // namespace Orvo::Tests
