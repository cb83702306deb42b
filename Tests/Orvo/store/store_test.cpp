#include "Orvo/store/store.h"

#include <utility>

#include <gtest/gtest.h>

#include "Support/notification_log.h"
#include "Support/operation_log.h"

namespace Orvo::Tests {
namespace {

using namespace std::chrono_literals;
using Runtime::Store;

using Heard = std::vector<Told>;

// A store without a panel, and what it notifies.
class StoreTest : public testing::Test {
protected:
    StoreTest() { store_.notifyTo(&panel_); }

    std::shared_ptr<Store> shared_ = Store::create();
    Store& store_ = *shared_;
    NotificationLog panel_;
};

TEST_F(StoreTest, SelectsOneOptionOfAContainer) {
    constexpr auto kP1 = channel(1).positive.option;
    constexpr auto kN1 = channel(1).negative.option;
    constexpr auto kP3 = channel(3).positive.option;
    store_[kP3].setValue(true);
    store_[kP1].setValue(true);
    store_.perform(Deed::click(kN1.id));
    EXPECT_FALSE(store_[kP1].value());
    EXPECT_TRUE(store_[kN1].value());
    EXPECT_TRUE(store_[kP3].value());
    EXPECT_EQ(panel_.take(),
              (Heard{{kP3, "click"}, {kP1, "click"}, {kN1, "click"}, {kN1, "release"}}));
    store_.perform(Deed::click(kN1.id));
    store_.perform(Deed::key(kN1.id, ' '));
    store_[kN1].setValue(true);
    EXPECT_EQ(
        panel_.take(),
        (Heard{{kN1, "click"}, {kN1, "release"}, {kN1, "key32"}, {kN1, "click"}, {kN1, "click"}}));
}

TEST_F(StoreTest, TicksOnceForAllTheTimeThatItMissed) {
    store_[pair(2).testTimer].setEnabled(false);
    store_.catchUp(10s);
    EXPECT_EQ(panel_.take(), (Heard{{pair(1).testTimer, "tick"}}));
    EXPECT_EQ(store_.untilNextTick(), 500ms);
}

TEST_F(StoreTest, LetsATickPassTimeItself) {
    panel_.answer = [&, isFirst = true]() mutable {
        if (std::exchange(isFirst, false)) store_.advance(3000ms);
    };
    store_.advance(2000ms);
    EXPECT_EQ(store_.now(), 4500ms);
    EXPECT_EQ(panel_.take().size(), 6U);
}

TEST_F(StoreTest, HoldsAPositionThatIsWrittenAndKeepsAPersonWithinTheBounds) {
    constexpr auto kSlider = channel(1).volumeSlider;
    const auto& state = store_.get<Runtime::StoredSlider>(kSlider.id).state();
    store_[kSlider].setPosition(-40);
    EXPECT_EQ(store_[kSlider].position(), -40);
    EXPECT_EQ(state.shown(), 0);
    store_.input().press(kSlider.id);
    EXPECT_TRUE(bool(store_[kSlider].buttonDown()));
    store_.perform(Deed::move(kSlider.id, 35));
    EXPECT_EQ(store_[kSlider].position(), 30);
    store_[kSlider].setEnabled(false);
    EXPECT_FALSE(bool(store_[kSlider].buttonDown()));
    store_.perform(Deed::slide(kSlider.id, 3));
    EXPECT_EQ(store_[kSlider].position(), 30);
    EXPECT_EQ(panel_.take(), (Heard{{kSlider, "change"}}));
}

TEST_F(StoreTest, KeepsTheSegmentsOfATraceBeforeTheOneThatFails) {
    constexpr auto kPicture = channel(1).scope;
    OperationLog log;
    log.failAt = 6;  // the third line
    store_.observeWith(&log);
    EXPECT_EQ(errorOf([&] { store_[kPicture].trace({{1, 2, 3, 4}, 4, 195, 95, {}}); }), 7);
    const auto& drawing = store_.get<Runtime::StoredPicture>(kPicture.id).state().drawing;
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(std::get<Widgets::Trace>(drawing[0]).samples.size(), 3U);
}

}  // namespace
}  // namespace Orvo::Tests
