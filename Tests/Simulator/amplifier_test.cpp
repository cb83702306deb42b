#include "Simulator/amplifier.h"

#include <map>

#include <gtest/gtest.h>

#include "Simulator/protection.h"

namespace Orvo::Simulator {
namespace {

int read(const Amplifier& amplifier, Item item, Integer index) {
    for (const Reading& reading : amplifier.readings()) {
        if (reading.item == item && reading.index == index) return reading.value;
    }
    return -1;
}

TEST(ProtectionTest, TripsHoldsAndClears) {
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

TEST(AmplifierTest, GoesNoFurtherThanItsVolume) {
    Amplifier amplifier(1);
    for (const auto& [asked, volume] : std::map<Integer, int>{{-12, -12}, {-40, -30}, {8, 0}}) {
        amplifier.obey(SetVolume{4, asked});
        EXPECT_EQ(read(amplifier, Item::volume, 4), volume) << asked;
    }
    amplifier.obey(SetVolume{5, -12});
    amplifier.obey(SetVolume{0, -12});
    EXPECT_EQ(read(amplifier, Item::volume, 4), 0);
}

}  // namespace
}  // namespace Orvo::Simulator
