#include "Manager/Host/simulated_host.h"
#include "Support/operation_log.h"
#include "Support/owned_panel.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

class HostCourseTest : public Tests::OwnedPanel {
protected:
    SimulatedHost host_{panel()};
};

TEST_F(HostCourseTest, IsTheSameForTheSameSeedHoweverItsTimeIsDivided) {
    const auto record = [](std::uint32_t seed, std::chrono::milliseconds pace) {
        Script::StorePanel owner;
        Tests::OperationLog recorder;
        owner.store().observeWith(&recorder);
        SimulatedHost host(owner.panel(), seed);
        for (auto now = 0ms; now < 6s; now += pace) {
            if (now == 2400ms) owner.store().perform(Tests::Deed::click(channel(2).muteButton));
            host.advance(pace);
        }
        owner.store().observeWith(nullptr);
        return recorder.seen;
    };
    const auto course = record(1, 16ms);
    EXPECT_GT(course.size(), 10'000U);
    EXPECT_EQ(course, record(1, 16ms));
    EXPECT_EQ(course, record(1, 48ms));
    EXPECT_NE(course, record(2, 16ms));
}

TEST_F(HostCourseTest, SendsOnlyWhatChanged) {
    host_.advance(3s);
    click(kCommon.muteButton);
    host_.advance(1s);
    Tests::OperationLog recorder;
    store().observeWith(&recorder);
    host_.advance(5s);
    store().observeWith(nullptr);
    // All scopes show silence and nothing is asked for: what is left is a volt here and there.
    EXPECT_LT(recorder.seen.size(), 200U);
}

TEST_F(HostCourseTest, SkipsWhatCannotBeMadeUpFor) {
    host_.advance(50h);
    EXPECT_EQ(host_.now(), 10min);
}

}  // namespace
}  // namespace Orvo::Manager
