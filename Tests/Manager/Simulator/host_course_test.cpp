#include <variant>

#include "Manager/Simulator/host_bench.h"

namespace Orvo::Tests {
namespace {

// What the panel did to its widgets, in words.
class Recorder final : public Runtime::OperationObserver {
public:
    void before(const Runtime::Operation& operation) override {
        std::string line = std::to_string(operation.widget) + ' ' +
                           std::to_string(static_cast<int>(operation.verb));
        if (const auto* text = std::get_if<StringView>(&operation.value)) line += toUtf8(*text);
        if (const auto* number = std::get_if<Integer>(&operation.value)) {
            line += ' ' + std::to_string(*number);
        }
        if (const auto* drawn = std::get_if<Runtime::LineSegment>(&operation.value)) {
            line += ' ' + std::to_string(drawn->from.y);
        }
        lines.push_back(line);
    }
    std::vector<std::string> lines;
};

TEST_F(HostTest, LivesTheSameLifeForTheSameSeedHoweverItsTimeIsDivided) {
    const auto record = [](std::uint32_t seed, int pace) {
        const auto bench = makeBench();
        Recorder recorder;
        bench->store().observeWith(&recorder);
        SimulatedHost host(bench->panel(), seed);
        for (int now = 0; now < 6000; now += pace) {
            if (now == 2400) bench->store().input().click(id("Command11"));
            host.advance(Milliseconds(pace));
        }
        bench->store().observeWith(nullptr);
        return recorder.lines;
    };
    const auto life = record(1, 16);
    EXPECT_GT(life.size(), 10'000U);
    EXPECT_EQ(life, record(1, 16));
    EXPECT_EQ(life, record(1, 48));
    EXPECT_NE(life, record(2, 16));
}

TEST_F(HostTest, SendsOnlyWhatChanged) {
    run();
    person_.click(id("Command17"));
    pass(1000);
    Recorder recorder;
    store_.observeWith(&recorder);
    pass(5000);
    store_.observeWith(nullptr);
    // All scopes show silence and nothing is asked for: what is left is a volt here and there.
    EXPECT_LT(recorder.lines.size(), 200U);
}

TEST_F(HostTest, SkipsWhatCannotBeMadeUpFor) {
    host_->advance(std::chrono::hours(50));
    EXPECT_EQ(host_->now(), std::chrono::minutes(10));
}

}  // namespace
}  // namespace Orvo::Tests
