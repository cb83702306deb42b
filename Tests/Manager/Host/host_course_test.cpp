#include "Manager/Host/host_bench.h"
#include "Support/operation_log.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, LivesTheSameLifeForTheSameSeedHoweverItsTimeIsDivided) {
    const auto record = [](std::uint32_t seed, int pace) {
        const auto bench = makeBench();
        OperationLog recorder;
        bench->store().observeWith(&recorder);
        SimulatedHost host(bench->panel(), seed);
        for (int now = 0; now < 6000; now += pace) {
            if (now == 2400) bench->store().perform(Deed::click(channel(2).muteButton));
            host.advance(Milliseconds(pace));
        }
        bench->store().observeWith(nullptr);
        return recorder.seen;
    };
    const auto life = record(1, 16);
    EXPECT_GT(life.size(), 10'000U);
    EXPECT_EQ(life, record(1, 16));
    EXPECT_EQ(life, record(1, 48));
    EXPECT_NE(life, record(2, 16));
}

TEST_F(HostTest, SendsOnlyWhatChanged) {
    run();
    store_.perform(Deed::click(kCommon.muteButton));
    pass(1000);
    OperationLog recorder;
    store_.observeWith(&recorder);
    pass(5000);
    store_.observeWith(nullptr);
    // All scopes show silence and nothing is asked for: what is left is a volt here and there.
    EXPECT_LT(recorder.seen.size(), 200U);
}

TEST_F(HostTest, SkipsWhatCannotBeMadeUpFor) {
    host_->advance(std::chrono::hours(50));
    EXPECT_EQ(host_->now(), std::chrono::minutes(10));
}

}  // namespace
}  // namespace Orvo::Tests
