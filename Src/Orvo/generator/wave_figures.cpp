#include "Orvo/generator/wave_figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "Orvo/generator/grid.h"
#include "Orvo/widgets/trace.h"

namespace Orvo {
namespace {

constexpr double kNoiseCounts = 3;
constexpr double kHysteresis = 0.25;  // of peak to peak, to either side of the middle
constexpr double kUnsteadiness = 0.2;

using Volts = std::vector<double>;

Volts inVolts(std::span<const Integer> samples, const SampleScale& scale) {
    Volts volts(samples.size());
    std::ranges::transform(samples, volts.begin(),
                           [&](Integer sample) { return scale.volts(sample); });
    return volts;
}

// In samples from the first one.
std::vector<double> risingCrossings(const Volts& volts, double middle, double hysteresis) {
    std::vector<double> crossings;
    double crossing = 0;
    bool wasLow = false;
    for (std::size_t i = 1; i < volts.size(); ++i) {
        const double before = volts[i - 1];
        const double now = volts[i];
        wasLow = wasLow || before <= middle - hysteresis;
        if (before < middle && now >= middle)
            crossing = static_cast<double>(i - 1) + (middle - before) / (now - before);
        if (!wasLow || now < middle + hysteresis) continue;
        crossings.push_back(crossing);
        wasLow = false;
    }
    return crossings;
}

std::optional<double> periodOf(std::span<const double> crossings) {
    if (crossings.size() < 2) return std::nullopt;
    const double first = crossings.front();
    const double period = (crossings.back() - first) / static_cast<double>(crossings.size() - 1);
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        const double place = first + static_cast<double>(i) * period;
        if (std::abs(crossings[i] - place) >= kUnsteadiness * period) return std::nullopt;
    }
    return period;
}

std::span<const double> wholePeriods(const Volts& volts, std::optional<double> period) {
    if (!period) return volts;
    const double whole = std::floor(static_cast<double>(volts.size()) / *period) * *period;
    return std::span(volts).first(static_cast<std::size_t>(std::lround(whole)));
}

double meanOf(std::span<const double> values, double (*of)(double)) {
    double sum = 0;
    for (const double value : values) sum += of(value);
    return sum / static_cast<double>(values.size());
}

}  // namespace

SampleScale sampleScale(float height) {
    const auto volts = [height](Integer sample) {
        return voltsAt(Widgets::traceY(sample, double{height}), height);
    };
    return {.atZero = volts(0), .perCount = volts(1) - volts(0)};
}

double WaveFigures::peak() const { return std::max(std::abs(least), std::abs(greatest)); }

std::optional<WaveFigures> waveFigures(std::span<const Integer> samples, const SampleScale& scale) {
    if (samples.empty()) return std::nullopt;
    const Volts volts = inVolts(samples, scale);
    const auto [least, greatest] = std::ranges::minmax(volts);
    WaveFigures figures;
    figures.least = least;
    figures.greatest = greatest;
    const double noise = (kNoiseCounts - 0.5) * std::abs(scale.perCount);
    figures.isSignal = figures.peakToPeak() > noise;
    if (figures.isSignal) {
        figures.period = periodOf(
            risingCrossings(volts, (least + greatest) / 2, kHysteresis * figures.peakToPeak()));
    }
    const auto measured = wholePeriods(volts, figures.period);
    figures.mean = meanOf(measured, [](double value) { return value; });
    figures.rms = std::sqrt(meanOf(measured, [](double value) { return value * value; }));
    return figures;
}

}  // namespace Orvo
