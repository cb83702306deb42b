#include "Manager/Session/session_bench.h"
#include "Support/memory.h"

namespace Orvo::Manager {
namespace {

class SessionInNeed : public SessionBench {
public:
    template <class Act>
    void attempt(const Act& act) {
        act(*session_, store());
    }

    void expectAfter(bool /*hasFailed*/) {
        session_->connectNothing();
        session_->letPass(1s);
        session_->station().log().clear();
        click(channel(1).muteButton);
        const auto& lines = session_->station().log().lines();
        ASSERT_EQ(std::ranges::count(lines, "event Mute 1"), 1);
    }

private:
    void TestBody() override {}
};

struct SimulationInNeed : SessionInNeed {
    SimulationInNeed() {
        session_->connectSimulator();
        session_->letPass(1s);
    }
};

struct ReplayInNeed : SessionInNeed {
    ReplayInNeed() {
        std::ofstream(file_) << "on Mute let Mute 2 true\nchronological\nclick Command12\n"
                                "meanwhile call AggiugiTesto \"a text with its own memory\"\n"
                                "wait 10\nkey List1 18\nanswer \"530284\"\nnew\nwait 3000\n";
        session_->startReplay(file_);
    }
};

// What escaped here would end the program.
TEST(SessionMemoryTest, ASessionThatRunsOutOfMemoryGoesOn) {
    const auto letPass = [](ManagerSession& session, Runtime::Store&) {
        for (int i = 0; i < 3; ++i) session.letPass(25ms);
    };
    failEveryAllocation<SimulationInNeed>(letPass);
    failEveryAllocation<ReplayInNeed>(letPass);
    failEveryAllocation<SimulationInNeed>([](ManagerSession& session, Runtime::Store& store) {
        store.perform(Deed::click(channel(1).muteButton));
        store.perform(Deed::slide(channel(1).volumeSlider, 7));
        session.letPass(25ms);
    });
}

}  // namespace
}  // namespace Orvo::Manager
