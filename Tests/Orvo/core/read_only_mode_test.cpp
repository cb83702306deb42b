#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using ReadOnlyMode = PanelTest;

TEST_F(ReadOnlyMode, DisablesEveryInputThatAPersonCouldChangeTheAmplifierWith) {
    const auto disabled = [this] {
        std::size_t count = 0;
        for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
            if (!isEnabled(id) && id != kCommon.amplifierIds) ++count;
        }
        return count;
    };
    for (const auto& [value, count] : std::vector<std::pair<Boolean, std::size_t>>{
             {kTrue, 36}, {kTrue, 36}, {Boolean(Integer{1}), 0}, {kTrue, 36}, {kFalse, 0}}) {
        panel_.ReadOnly(value);
        EXPECT_EQ(disabled(), count) << value.raw();
        EXPECT_EQ(panel_.ReadOnly(), value);
    }
}

}  // namespace
}  // namespace Orvo::Tests
