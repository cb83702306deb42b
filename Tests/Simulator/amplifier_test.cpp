#include "Simulator/amplifier.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

#include "Simulator/heat_sink.h"
#include "Simulator/power_supply.h"
#include "Simulator/protection.h"

namespace Orvo::Simulator {
namespace {

void pass(Amplifier& amplifier, int seconds) {
    for (int i = 0; i < seconds * 100; ++i) amplifier.step();
}

int read(const Amplifier& amplifier, Item item, Integer index) {
    for (const Reading& reading : amplifier.readings()) {
        if (reading.item == item && reading.index == index) return reading.value;
    }
    return -1;
}

// Seconds until a rail is where it shall be; a minute at most.
template <class Condition>
double seconds(Rail& rail, double source, double amperes, Condition condition) {
    int steps = 0;
    for (; steps < 6000 && !condition(rail.share()); ++steps) rail.step(source, amperes);
    return steps * kStepSeconds;
}

TEST(Rails, RiseSagAndDischargeAtTheirOwnPace) {
    Rail rail({100, 50, 2, 1, 0.05});
    EXPECT_NEAR(seconds(rail, 1, 0, [](double share) { return share > 0.999; }), 2, 0.05);
    EXPECT_NEAR(seconds(rail, 1, 10, [](double share) { return share < 0.91; }), 0.14, 0.05);
    rail.step(1, 0);
    EXPECT_LT(rail.volts(), 92);
    seconds(rail, 1, 0, [](double share) { return share > 0.999; });
    EXPECT_NEAR(seconds(rail, 0, 0, [](double share) { return share < 0.368; }), 2, 0.05);
    seconds(rail, 0, 10, [](double share) { return share == 0; });
    EXPECT_EQ(rail.volts(), 0);
}

TEST(Protections, TripHoldAndClear) {
    Protection protection;
    const struct {
        const char* label;
        double degrees;
        int steps;
        bool isShorted;
        bool isTripped;
    } kRows[] = {
        {"at the threshold", 90, 10, false, false},
        {"above it", 90.1, 1, false, true},
        {"cooler, but not enough", 76, 1000, false, true},
        {"cool, but not for long enough", 74, 199, false, true},
        {"cool for two seconds", 74, 1, false, false},
        {"as warm as before", 89, 1000, false, false},
        {"short circuit", 30, 1, true, true},
        {"short circuit gone", 30, 199, false, true},
        {"gone for two seconds", 30, 1, false, false},
    };
    for (const auto& row : kRows) {
        for (int i = 0; i < row.steps; ++i) protection.step(row.degrees, row.isShorted);
        EXPECT_EQ(protection.isTripped(), row.isTripped) << row.label;
    }
    EXPECT_EQ(protection.trips(), 2);
}

TEST(HeatSinks, SettleWhereTheFanTakesAwayWhatComesIn) {
    const struct {
        double watts;
        double degrees;
        double fan;
        bool hasFan;
    } kRows[] = {{0, 24, 0, true}, {30, 35.5, 0, true}, {464, 64, 1, true}, {464, 202, 0, false}};
    for (const auto& row : kRows) {
        HeatSink sink;
        for (int i = 0; i < 200'000; ++i) sink.step(row.watts, HeatSink::Air::ambient, row.hasFan);
        EXPECT_NEAR(sink.degrees(), row.degrees, 1.5) << row.watts;
        EXPECT_NEAR(sink.fan(), row.fan, 0.1) << row.watts;
    }
}

TEST(Amplifiers, TripOnTheHeatOfAFullToneAndComeBackCooler) {
    Amplifier amplifier(1);
    amplifier.obey(SetVolume{1, 0});
    amplifier.obey(StartGenerator{1, Signal::tone1kHz, Input::positive});
    pass(amplifier, 30);
    EXPECT_EQ(read(amplifier, Item::protection, 1), 0);
    EXPECT_GT(read(amplifier, Item::temperature, 1), 35);
    EXPECT_LT(read(amplifier, Item::positivePower, 1), 112);
    int tripped = 0;
    for (; tripped < 240 && read(amplifier, Item::protection, 1) == 0; ++tripped) {
        pass(amplifier, 1);
    }
    EXPECT_LT(tripped, 240);
    EXPECT_EQ(read(amplifier, Item::protection, 0), 1);
    EXPECT_EQ(read(amplifier, Item::protection, 2), 0);
    pass(amplifier, 1);
    EXPECT_GT(read(amplifier, Item::positivePower, 1), 115);
    EXPECT_EQ(read(amplifier, Item::protection, 1), 1);
    pass(amplifier, 20);
    amplifier.obey(SetVolume{1, -6});
    pass(amplifier, 20);
    EXPECT_EQ(read(amplifier, Item::protection, 1), 0);
}

TEST(Amplifiers, WanderByAVoltAndNotMore) {
    Amplifier amplifier(3);
    pass(amplifier, 5);
    std::set<int> volts;
    for (int i = 0; i < 120; ++i) {
        pass(amplifier, 1);
        volts.insert(read(amplifier, Item::positivePower, 1));
    }
    EXPECT_GT(volts.size(), 1U);
    EXPECT_LE(*volts.rbegin() - *volts.begin(), 3);
}

TEST(Amplifiers, GoNoFurtherThanTheirVolume) {
    Amplifier amplifier(1);
    for (const auto& [asked, volume] : std::map<Integer, int>{{-12, -12}, {-40, -30}, {8, 0}}) {
        amplifier.obey(SetVolume{4, asked});
        EXPECT_EQ(read(amplifier, Item::volume, 4), volume) << asked;
    }
    amplifier.obey(SetVolume{5, -12});
    amplifier.obey(SetVolume{0, -12});
    EXPECT_EQ(read(amplifier, Item::volume, 4), 0);
}

TEST(Amplifiers, KeepAVirtualTemperatureOnlyWhileItIsRepeated) {
    Amplifier amplifier(1);
    pass(amplifier, 3);
    amplifier.obey(SetVirtualTemperature{2, 95});
    pass(amplifier, 3);
    EXPECT_EQ(read(amplifier, Item::temperature, 2), 95);
    EXPECT_EQ(read(amplifier, Item::protection, 3), 1);
    EXPECT_EQ(read(amplifier, Item::protection, 4), 1);
    EXPECT_EQ(read(amplifier, Item::protection, 1), 0);
    pass(amplifier, 2);
    EXPECT_LT(read(amplifier, Item::temperature, 2), 40);
    pass(amplifier, 2);
    EXPECT_EQ(read(amplifier, Item::protection, 3), 0);
}

TEST(Amplifiers, AreThemselvesForASeed) {
    Amplifier one(7);
    Amplifier same(7);
    Amplifier other(8);
    for (Amplifier* amplifier : {&one, &same, &other}) pass(*amplifier, 20);
    EXPECT_EQ(one.scopeFrames()[2].samples, same.scopeFrames()[2].samples);
    EXPECT_NE(one.scopeFrames()[2].samples, other.scopeFrames()[2].samples);
    EXPECT_EQ(one.internalData(), same.internalData());
    EXPECT_NE(one.internalData(), other.internalData());
}

}  // namespace
}  // namespace Orvo::Simulator
