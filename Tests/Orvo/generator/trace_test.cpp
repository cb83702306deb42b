#include <limits>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using TraceTest = PanelTest;

struct Drawn {
    std::size_t grid = 0;
    std::size_t samples = 0;
};

Drawn drawnOn(Runtime::Store& store, Widgets::PictureRef scope) {
    Drawn drawn;
    for (const auto& item : store.get<Runtime::StoredPicture>(scope).state().drawing) {
        if (const auto* trace = std::get_if<Widgets::Trace>(&item)) {
            EXPECT_EQ(trace->colour, rgb(0, 255, 0));
            drawn.samples = trace->samples.size();
        } else {
            ++drawn.grid;
        }
    }
    return drawn;
}

TEST_F(TraceTest, JoinsTheSamplesFromIndex1AndStopsWhereTheArrayDoes) {
    using Dimensions = std::vector<IntegerArray::Bounds>;
    const struct {
        const char* label = "";
        IntegerArray samples;
        std::size_t drawn = 0;
        Long error = 0;
    } kRows[] = {
        {"from 0", IntegerArray(0, std::vector<Integer>(100)), 99, 0},
        {"from -3", IntegerArray(-3, std::vector<Integer>(6)), 2, 0},
        {"far below", IntegerArray(std::numeric_limits<Long>::min(), {7}), 0, 6},
        {"no dimension", IntegerArray(), 0, 9},
        {"two dimensions", IntegerArray(Dimensions{{1, 4}, {1, 4}}), 0, 9},
        {"two dimensions, short", IntegerArray(Dimensions{{1, 1}, {1, 4}}), 0, 0},
        {"the longest", IntegerArray(1, std::vector<Integer>(32767)), 32767, 0},
        {"one more", IntegerArray(1, std::vector<Integer>(32768)), 32767, 6},
        {"two more", IntegerArray(1, std::vector<Integer>(32769)), 0, 6},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.label);
        panel_.DisegnaFormaDOnda(2, IntegerArray(1, {1, 2, 3}));
        EXPECT_EQ(errorOf([&] { panel_.DisegnaFormaDOnda(2, row.samples); }), row.error);
        const Drawn drawn = drawnOn(store_, channel(2).scope);
        EXPECT_EQ(drawn.grid, 19U);
        EXPECT_EQ(drawn.samples, row.drawn);
        EXPECT_EQ(drawnOn(store_, channel(1).scope).samples, 0U);
    }
}

}  // namespace
}  // namespace Orvo::Tests
