#include "Manager/Station/station.h"

#include "Support/owned_panel.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using enum Notice::Kind;

/// Says the link up and each event's answer, and calls nothing by itself.
class Answering final : public Device {
public:
    explicit Answering(Script::PanelOwner& owner)
        : owner_(owner), renewals_(owner.onRenewed([this] { hear(); })) {
        hear();
    }
    [[nodiscard]] std::string name() const override { return "Amplifier"; }
    void advance(std::chrono::milliseconds elapsed) override { silence_ += elapsed; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }

private:
    void hear() {
        events_ = owner_.panel().connect([this](Long, std::span<Value>) {
            owner_.panel().Mute(1, true);
            owner_.panel().Mute(Integer{1});
        });
        owner_.panel().Connected(true);
    }

    Script::PanelOwner& owner_;
    std::chrono::milliseconds silence_{0};
    Connection events_;
    Connection renewals_;
};

class StationTest : public Tests::OwnedPanel {
protected:
    using Lines = std::deque<std::string>;

    StationTest() {
        station_.connect([this] { return std::make_unique<Answering>(owner_); });
    }

    Station station_{owner_};
};

TEST_F(StationTest, DisconnectingShowsTheLinkDownAndCallsTheValuesOld) {
    station_.advance(2s);
    EXPECT_TRUE(station_.situation().isLinkUp);
    EXPECT_EQ(station_.situation().silence, 2s);
    station_.disconnect();
    EXPECT_FALSE(station_.situation().isLinkUp);
    EXPECT_EQ(station_.situation().connectedTo, "");
    station_.advance(3s);
    EXPECT_EQ(station_.situation().silence, 5s) << "of the values that are left";
    EXPECT_FALSE(station_.situation().isHeard);
}

TEST_F(StationTest, WhatTheDeviceAnswersStandsUnderTheEventOnAFreshPanelToo) {
    for (int i = 0; i < 2; ++i) {
        station_.log().clear();
        click(channel(1).muteButton);
        panel().Clock(1, true);
        EXPECT_EQ(station_.log().lines(), Lines({"event Mute 1", "  let Mute 1 -1", "  get Mute 1",
                                                 "  = -1", "let Clock 1 -1"}));
        owner_.renew();
        EXPECT_EQ(station_.situation().silence, 0s);
    }
}

TEST_F(StationTest, NothingThatGoesOnInTheAmplifierIsForgotten) {
    const auto expectNotices = [&](const std::vector<Notice>& expected) {
        ASSERT_TRUE(station_.notices());
        EXPECT_EQ(*station_.notices(), expected);
    };
    panel().PowerOn(true);
    expectNotices({});
    panel().Protection(0, true);
    expectNotices({{alarm, "Protection", kCommon.protectionLamp}});
    panel().Protection(4, true);
    panel().Mute(2, true);
    panel().Mute(3, true);
    store().perform(Runtime::Deed::click(pair(2).waves[0]));
    store().perform(Runtime::Deed::click(channel(4).negative.option));
    click(pair(2).startButton);
    store().perform(Runtime::Deed::move(pair(1).testSlider, 40));
    const Notice protection{alarm, "Protection: 4", channel(4).protectionLamp};
    const Notice test{activity, "Thermal test 1 + 2: 40 °C", pair(1).testSlider};
    // The click that starts the generator is answered by a mute of channel 1.
    const Notice mutes{activity, "Muted: 1, 2, 3", channel(1).muteButton};
    expectNotices({protection,
                   {activity, "Generator: 100 Hz to channel 4 −", pair(2).startButton},
                   test,
                   mutes});
    panel().PowerOn(false);
    expectNotices({protection, test, mutes});
    panel().PowerOn(true);
    expectNotices({protection,
                   {activity, "Generator: 100 Hz to channel 4 −", pair(2).startButton},
                   test,
                   mutes});
    panel().AbilitaSlave(false);
    expectNotices({{alarm, "Protection", kCommon.protectionLamp},
                   test,
                   {activity, "Muted: 1, 2", channel(1).muteButton}});
    station_.disconnect();
    EXPECT_FALSE(station_.notices()) << "old";
}

}  // namespace
}  // namespace Orvo::Manager
