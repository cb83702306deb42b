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

std::string csvOf(const IntegerArray& samples) {
    const ScopeTrace trace{2, samples, std::nullopt};
    const std::string csv = traceCsv({&trace, 1});
    return csv.substr(csv.rfind("(V)\n") + 4);
}

// The scope's 0 V mark lies 50 pixels down, 10 pixels are 30 V.
TEST(TraceCsvTest, HasALineForEachSampleWithItsTimeAndLevel) {
    const ScopeTrace traces[] = {{1, {1, {128, 8, 247}}, 1e-5}, {3, {1, {134}}, std::nullopt}};
    EXPECT_EQ(traceCsv(traces),
              "# level (V) = 160.014 + sample * -1.19588\n"
              "# channel 1: 1e-05 s from sample to sample\n"
              "# channel 3: time unknown\n"
              "channel,index,time (s),sample (counts),level (V)\n"
              "1,1,0,128,6.94\n1,2,1e-05,8,150.45\n1,3,2e-05,247,-135.37\n3,1,,134,-0.23\n");
}

TEST(TraceCsvTest, LeavesOutWhatTheScopeDoesNotDraw) {
    EXPECT_EQ(csvOf({-1, {1, 2, 128}}), "2,1,,128,6.94\n");
    EXPECT_EQ(csvOf({2, {128}}), "");
    EXPECT_EQ(csvOf({std::numeric_limits<Long>::min(), {128}}), "");
    EXPECT_EQ(csvOf({}), "");
}

TEST_F(TracesTest, AreThoseTheScopesShow) {
    panel_.DisegnaFormaDOnda(2, {1, {10, 20}});
    panel_.DisegnaFormaDOnda(2, {1, {30, 40}});
    EXPECT_EQ(traces_.trace(2).samples, IntegerArray(1, {30, 40}));
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
