#include "Manager/Station/station.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Support/bench.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Simulator::Fault;

class StationTest : public Tests::PanelTest {
protected:
    [[nodiscard]] bool hasLine(std::string_view line) {
        const auto& lines = station_.log().lines();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    Station station_{panel_};
};

TEST_F(StationTest, TheSimulatorBringsThePanelToLife) {
    station_.connectSimulator(7);
    station_.advance(2s);
    EXPECT_TRUE(isLit("shpConnected"));
    EXPECT_EQ(station_.situation().connectedTo, "Simulated amplifier (seed 7)");
    EXPECT_TRUE(station_.situation().isLinkUp);
    EXPECT_LT(station_.situation().silence, 1s);
}

TEST_F(StationTest, SilenceGrowsWithoutTheLink) {
    station_.connectSimulator(1);
    station_.advance(2s);
    station_.simulator()->set(Fault::linkLoss, true);
    station_.advance(10s);
    EXPECT_FALSE(station_.situation().isLinkUp);
    EXPECT_GT(station_.situation().silence, 9s);
}

TEST_F(StationTest, DisconnectingShowsTheLinkDownAndCallsTheValuesOld) {
    station_.connectSimulator(1);
    station_.advance(2s);
    station_.disconnect();
    EXPECT_FALSE(isLit("shpConnected"));
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
    person_.click(Tests::id("Command12"));
    station_.advance(2s);
    EXPECT_EQ(station_.log().lines(), std::deque<std::string>({"event Mute 1"}));
}

TEST_F(StationTest, WhatTheAmplifierConfirmsLaterIsNoPartOfTheEvent) {
    station_.connectSimulator(1);
    station_.advance(3s);
    person_.click(Tests::id("Command12"));
    station_.advance(1s);
    EXPECT_TRUE(hasLine("event Mute 1"));
    EXPECT_TRUE(hasLine("let Mute 1 -1"));
}

TEST_F(StationTest, KeepsTheTracesOfTheScopes) {
    station_.connectSimulator(1);
    station_.advance(3s);
    person_.click(Tests::id("cmdGo12"));
    station_.advance(1s);
    EXPECT_TRUE(station_.traces().has(1));
}

}  // namespace
}  // namespace Orvo::Manager
