#include "Orvo/generator/wave_figures.h"

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

namespace Orvo {
namespace {

using Wave = std::function<double(int place)>;

Wave sine(double amplitude, double period, double level = 0) {
    return [=](int i) { return level + amplitude * std::sin(2 * std::numbers::pi * i / period); };
}
Wave square(double low, double high, int period, int lengthOfHigh) {
    return [=](int i) { return i % period < lengthOfHigh ? high : low; };
}
double noise(int place) { return (place * 7919 + place * place * 31) % 97; }

std::vector<Integer> samplesOf(const Wave& wave, int count) {
    std::vector<Integer> samples(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<Integer>(std::lround(wave(static_cast<int>(i))));
    }
    return samples;
}

constexpr double kMost = std::numeric_limits<Integer>::max();
constexpr double kLeast = std::numeric_limits<Integer>::min();
constexpr double kNone = 0;  // period

TEST(WaveFiguresTest, AreThoseOfKnownWaves) {
    const struct {
        const char* label;
        Wave wave;
        int count;
        double peakToPeak, mean, rms, period;
        bool isSignal = true;
    } kRows[] = {
        {"a sine, not in whole periods", sine(1000, 96), 240, 2000, 0, 707.1, 96},
        {"a period between two samples", sine(1000, 33.3), 240, 1998, 0, 707.1, 33.3},
        {"above zero", sine(1000, 60, 500), 240, 2000, 500, 866, 60},
        {"two full periods and a touch", sine(1000, 110), 240, 2000, 0, 707.1, 110},
        {"one period: nothing to tell it by", sine(1000, 240), 240, 2000, 0, 707.1, kNone},
        {"a square", square(-500, 500, 40, 20), 240, 1000, 0, 500, 40},
        {"narrow pulses", square(0, 100, 60, 6), 240, 100, 10, 31.6, 60},
        {"a burst", [](int i) { return sine(i < 120 ? 1000 : 100, 15)(i); }, 240, 1989, 0, 502, 15},
        {"a ripple at the middle counts once",
         [](int i) { return sine(1000, 80)(i) + 150 * (i % 2); }, 240, 2150, 75, 715, 80},
        {"noise", noise, 240, 93, 48.1, 56, kNone},
        {"direct voltage", [](int) { return -70; }, 100, 0, -70, 70, kNone, false},
        {"as little as noise", square(10, 12, 20, 10), 100, 2, 11, 11.05, kNone, false},
        {"as little as a signal", square(10, 13, 20, 10), 100, 3, 11.5, 11.6, 20},
        {"a single sample", [](int) { return 7; }, 1, 0, 7, 7, kNone, false},
        {"the extremes", square(kLeast, kMost, 2, 1), 32767, kMost - kLeast, -0.5, 32767.5, 2},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.label);
        const auto figures = waveFigures(samplesOf(row.wave, row.count), SampleScale{});
        ASSERT_TRUE(figures);
        const double one = 0.01 * figures->peak();
        EXPECT_NEAR(figures->peakToPeak(), row.peakToPeak, one);
        EXPECT_NEAR(figures->mean, row.mean, one);
        EXPECT_NEAR(figures->rms, row.rms, one);
        EXPECT_NEAR(figures->period.value_or(kNone), row.period, 0.005 * row.period);
        EXPECT_EQ(figures->isSignal, row.isSignal);
    }
    EXPECT_FALSE(waveFigures({}, SampleScale{}));
}

TEST(WaveFiguresTest, TheScaleIsTheGrids) {
    const SampleScale scale = sampleScale(95);
    EXPECT_NEAR(scale.volts(128), 6.94, 0.005);
    EXPECT_NEAR(waveFigures(std::vector<Integer>{128, 247, 8}, scale)->peak(), 150.45, 0.005);
}

}  // namespace
}  // namespace Orvo
