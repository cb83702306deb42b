#include "Simulator/signal.h"

#include <gtest/gtest.h>

#include "Simulator/scope_frame.h"

namespace Orvo::Simulator {
namespace {

TEST(ScopeFrameTest, AgreesWithThePanelsGrid) {
    EXPECT_EQ(sampleOf(0), 134);
    // Where the panel draws a sample, and where the grid's mark for that voltage is.
    for (const int volts : {120, 90, 30, 0, -60, -120}) {
        const double y = (sampleOf(volts) * 1.07 - 8.96) * 95 / 255;
        EXPECT_NEAR(y, 50 - volts / 3.0, 0.2) << volts;
    }
}

TEST(SignalTest, HasThePowerOfItsShape) {
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

}  // namespace
}  // namespace Orvo::Simulator
