#include "Manager/Station/station.h"

#include "Support/owned_panel.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// Says the link up and each event's answer, and calls nothing by itself.
class Answering final : public Device {
public:
    explicit Answering(Script::PanelOwner& owner)
        : events_(owner.panel().connect([&owner](Long, std::span<Value>) {
              owner.panel().Mute(1, true);
              owner.panel().Mute(Integer{1});
          })) {
        owner.panel().Connected(true);
    }
    [[nodiscard]] std::string name() const override { return "Amplifier"; }
    void advance(std::chrono::milliseconds elapsed) override { silence_ += elapsed; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }

private:
    std::chrono::milliseconds silence_{0};
    Connection events_;
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
        station_.startAnew();
        EXPECT_EQ(station_.situation().silence, 0s);
    }
}

}  // namespace
}  // namespace Orvo::Manager
