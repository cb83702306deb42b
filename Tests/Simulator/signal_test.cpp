#include "Simulator/signal.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Simulator/scope_frame.h"

namespace Orvo::Simulator {
namespace {

TEST(ScopeFrame, AgreesWithThePanelsGrid) {
    EXPECT_EQ(sampleOf(0), 134);
    // Where the panel draws a sample, and where the grid's mark for that voltage is.
    for (const int volts : {120, 90, 30, 0, -60, -120}) {
        const double y = (sampleOf(volts) * 1.07 - 8.96) * 95 / 255;
        EXPECT_NEAR(y, 50 - volts / 3.0, 0.2) << volts;
    }
}

TEST(Signals, HaveThePowerOfTheirShape) {
    const struct {
        const char* label;
        Signal signal;
        double volts;
        double limit;
        double expected;
    } kRows[] = {
        {"a sine", Signal::tone1kHz, 100, 200, 5000},
        {"its frequency makes no difference", Signal::tone10kHz, 100, 200, 5000},
        {"inverted", Signal::tone100Hz, -100, 200, 5000},
        {"clipped to nearly a square", Signal::tone1kHz, 10000, 100, 10000},
        {"without a supply", Signal::tone1kHz, 100, 0, 0},
        {"a fifth of the time, and little between", Signal::eiaj, 100, 200, 1040},
    };
    for (const auto& row : kRows) {
        const double power = meanSquare(row.signal, row.volts, -row.limit, row.limit);
        EXPECT_NEAR(power, row.expected, row.expected * 0.02) << row.label;
    }
}

TEST(Signals, StayWithinTheirPeak) {
    for (int signal = 0; signal < 5; ++signal) {
        double highest = 0;
        for (int i = 0; i < 4000; ++i) {
            highest = std::max(highest, std::abs(carrier(static_cast<Signal>(signal), i / 97.0)));
        }
        EXPECT_LE(highest, 1.0) << signal;
        EXPECT_GT(highest, 0.7) << signal;
    }
}

TEST(Programme, RestsBetweenItsPhrasesAndDiffersByItsSeed) {
    const Programme one(1);
    const Programme other(2);
    int rests = 0;
    int differences = 0;
    constexpr int kSeconds = 140;
    for (int i = 0; i < kSeconds * 10; ++i) {
        const double loudness = one.loudness(i / 10.0);
        ASSERT_GE(loudness, 0);
        ASSERT_LE(loudness, 1);
        if (loudness == 0) ++rests;
        if (loudness != other.loudness(i / 10.0)) ++differences;
    }
    EXPECT_NEAR(rests, 160, 20);
    EXPECT_GT(differences, 1000);
}

}  // namespace
}  // namespace Orvo::Simulator
