#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using Monitor = PanelTest;

TEST_F(Monitor, LightsExactlyTheLampOfAFlagAndIndex) {
    using I = MarvaneAssistantInterface;
    const struct {
        void (I::*set)(Integer, Boolean);
        std::vector<std::string> lamps;  // from index 0
    } kRows[] = {
        {&I::Protection, {"Shape28", "Shape18", "Shape21", "Shape13", "Shape14"}},
        {&I::Signal, {"", "Shape22", "Shape23", "Shape19", "Shape24"}},
        {&I::Clock, {"", "Shape6", "Shape4"}},
        {&I::Ready, {"", "Shape17", "Shape12"}},
    };
    const auto lit = [this] {
        std::string names;
        for (const auto& widget : Layout::kWidgets) {
            const bool isLamp = widget.style.kind == Layout::Kind::shape && !widget.style.isSolid;
            if (isLamp && isLit(widget.name)) names += widget.name;
        }
        return names;
    };
    for (const auto& row : kRows) {
        for (Integer index = -1; index <= 5; ++index) {
            const bool isThere = index >= 0 && std::size_t(index) < row.lamps.size();
            const std::string lamp = isThere ? row.lamps[std::size_t(index)] : "";
            (panel_.*row.set)(index, Boolean(Integer{1}));
            EXPECT_EQ(lit(), lamp) << row.lamps.back() << ' ' << index;
            (panel_.*row.set)(index, kFalse);
            EXPECT_EQ(lit(), "") << row.lamps.back() << ' ' << index;
        }
    }
}

}  // namespace
}  // namespace Orvo::Tests
