#include <stdexcept>
#include <thread>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using EventsTest = PanelTest;

class Assigning final : public MarvaneAssistantEvents {
public:
    void Mute(Integer& intChannel) override {
        heard.push_back(intChannel);
        intChannel = 9;
    }
    std::vector<Integer> heard;
};

TEST_F(EventsTest, PassCopiesThatASinkMayAssignTo) {
    Assigning first;
    Assigning second;
    const auto one = panel_.connect(first);
    const auto two = panel_.connect(second);
    store_.perform(Deed::click(channel(2).muteButton));
    store_.perform(Deed::click(channel(2).muteButton));
    EXPECT_EQ(first.heard, (std::vector<Integer>{2, 2}));
    EXPECT_EQ(second.heard, (std::vector<Integer>{2, 2}));
}

TEST_F(EventsTest, EndWithTheirConnection) {
    int heard = 0;
    {
        const auto connection = panel_.connect([&](Long, std::span<Value>) { ++heard; });
        store_.perform(Deed::click(kCommon.powerButton));
    }
    store_.perform(Deed::click(kCommon.powerButton));
    EXPECT_EQ(heard, 1);
}

TEST_F(EventsTest, LetASinkDisconnectItselfAndAnotherAndConnectANewOne) {
    Connection self;
    Connection later;
    Connection added;
    Lines heard;
    self = panel_.connect([&](Long, std::span<Value>) {
        heard.emplace_back("self");
        self.disconnect();
        later.disconnect();
        added = panel_.connect([&](Long, std::span<Value>) { heard.emplace_back("added"); });
    });
    later = panel_.connect([&](Long, std::span<Value>) { heard.emplace_back("later"); });
    store_.perform(Deed::click(kCommon.powerButton));
    EXPECT_EQ(heard, Lines{"self"});
    store_.perform(Deed::click(kCommon.powerButton));
    EXPECT_EQ(heard, (Lines{"self", "added"}));
}

TEST_F(EventsTest, LetGoOfWhatASinkHoldsOnceItIsDisconnected) {
    const auto held = std::make_shared<int>();
    Connection holding;
    const auto connect = [&] { holding = panel_.connect([held](Long, std::span<Value>) {}); };
    connect();
    holding.disconnect();
    EXPECT_EQ(held.use_count(), 1) << "at once";
    const auto other = panel_.connect([&](Long, std::span<Value>) { holding.disconnect(); });
    connect();
    store_.perform(Deed::click(kCommon.powerButton));
    EXPECT_EQ(held.use_count(), 1) << "after an event in which another sink disconnected it";
    auto bench = makeBench();
    holding = bench->panel().connect([held](Long, std::span<Value>) {});
    bench->release();
    EXPECT_EQ(held.use_count(), 1) << "with the panel";
}

TEST_F(EventsTest, GoOnWhenASinkFails) {
    const auto failing = panel_.connect([&](Long id, std::span<Value>) {
        if (id == 1) throw std::runtime_error("no link");
        panel_.Volume(1, -32768);
    });
    int heard = 0;
    const auto other = panel_.connect([&](Long, std::span<Value>) { ++heard; });
    store_.perform(Deed::click(kCommon.powerButton));
    store_.perform(Deed::click(channel(1).muteButton));
    EXPECT_EQ(heard, 2);
    EXPECT_EQ(lines_,
              (Lines{"OnOff", "! 1003 Host handler failed: no link", "Mute 1", "! 6 Overflow"}));
}

using ThreadsTest = PanelTest;

TEST_F(ThreadsTest, OtherThanThePanelsAreRefusedAndChangeNothing) {
    Long direct = 0;
    Long late = 0;
    std::thread([&] {
        direct = errorOf([&] { panel_.Connected(kTrue); });
        const Value argument = Boolean(true);
        late = panel_.invoke(0x68030013, MemberKind::let, {&argument, 1}).error->number();
    }).join();
    EXPECT_EQ(direct, 1001);
    EXPECT_EQ(late, 1001);
    EXPECT_FALSE(store_.get<Runtime::StoredShape>(kCommon.linkLamp).state().isLit());
}

}  // namespace
}  // namespace Orvo::Tests
