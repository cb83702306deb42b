#include "Manager/Station/traces.h"

#include <limits>

#include "Support/bench.h"

namespace Orvo::Manager {
namespace {

class TracesTest : public Tests::PanelTest {
protected:
    Traces traces_;
    Connection calls_ = panel_.listen(traces_);
};

const std::string kHeader = "index,sample (counts),level (V)\n";

// The scope's 0 V mark lies 50 pixels down, 10 pixels are 30 V.
TEST(TraceCsvTest, HasALineForEachSampleWithItsLevel) {
    EXPECT_EQ(traceCsv({1, {128, 8, 247}}), kHeader + "1,128,6.94\n2,8,150.45\n3,247,-135.37\n");
}

TEST(TraceCsvTest, LeavesOutWhatTheScopeDoesNotDraw) {
    EXPECT_EQ(traceCsv({-1, {1, 2, 128}}), kHeader + "1,128,6.94\n");
    EXPECT_EQ(traceCsv({2, {128}}), kHeader);
    EXPECT_EQ(traceCsv({std::numeric_limits<Long>::min(), {128}}), kHeader);
    EXPECT_EQ(traceCsv({}), kHeader);
}

TEST_F(TracesTest, AreThoseTheScopesShow) {
    panel_.DisegnaFormaDOnda(2, {1, {10, 20}});
    panel_.DisegnaFormaDOnda(2, {1, {30, 40}});
    EXPECT_EQ(traces_.samples(2), IntegerArray(1, {30, 40}));
    EXPECT_FALSE(traces_.has(1));
    panel_.DisegnaAssi(2);
    EXPECT_FALSE(traces_.has(2));
}

TEST_F(TracesTest, AnUnknownChannelClearsTheFirstGrid) {
    panel_.DisegnaFormaDOnda(1, {1, {10, 20}});
    panel_.DisegnaAssi(9);
    EXPECT_FALSE(traces_.has(1));
}

}  // namespace
}  // namespace Orvo::Manager
