#include "Manager/Station/station.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Support/bench.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

class StationTest : public Tests::PanelTest {
protected:
    Station station_{panel_};
};

TEST_F(StationTest, DisconnectingShowsTheLinkDownAndCallsTheValuesOld) {
    station_.connectSimulator(1);
    station_.advance(2s);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    EXPECT_EQ(station_.situation().connectedTo, "Simulated amplifier (seed 1)");
    station_.disconnect();
    EXPECT_FALSE(isLit(kCommon.linkLamp));
    EXPECT_TRUE(station_.situation().connectedTo.empty());
    EXPECT_TRUE(station_.situation().showsOldValues);
    EXPECT_EQ(station_.simulator(), nullptr);
}

TEST_F(StationTest, NothingConnectedAnswersNoEventAnyMore) {
    station_.connectSimulator(1);
    station_.advance(2s);
    station_.connectSimulator(1);
    station_.disconnect();
    station_.log().clear();
    person_.click(channel(1).muteButton);
    station_.advance(2s);
    EXPECT_EQ(station_.log().lines(), std::deque<std::string>({"event Mute 1"}));
}

TEST_F(StationTest, WhatTheAmplifierConfirmsLaterIsNoPartOfTheEvent) {
    station_.connectSimulator(1);
    station_.advance(3s);
    person_.click(channel(1).muteButton);
    station_.advance(1s);
    const auto& lines = station_.log().lines();
    for (const char* line : {"event Mute 1", "let Mute 1 -1"}) {
        EXPECT_EQ(std::count(lines.begin(), lines.end(), line), 1) << line;
    }
}

}  // namespace
}  // namespace Orvo::Manager
