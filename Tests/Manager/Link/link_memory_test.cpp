#include "Manager/Link/link_bench.h"
#include "Support/memory.h"

namespace Orvo::Manager {
namespace {

/// A link on which something has been said that has not been heard yet.
class LinkToHear : public LinkTest {
public:
    LinkToHear() {
        goOnline();
        send("on Mute get Mute 1\ncall AggiugiTesto \"" + std::string(100, 'x') + "\"\n");
    }

    template <class Act>
    void attempt(const Act& act) {
        act(station_);
    }

    void expectAfter(bool /*hasFailed*/) {
        hangUp();
        station_.advance(25ms);
        station_.advance(1s);
        EXPECT_EQ(ask("get Mute 1\n"), "= 0\n");
    }

private:
    void TestBody() override {}
};

TEST(LinkMemoryTest, ALinkThatRunsOutOfMemoryIsTriedAgain) {
    Tests::failEveryAllocation<LinkToHear>([](Station& station) { station.advance(25ms); });
}

}  // namespace
}  // namespace Orvo::Manager
