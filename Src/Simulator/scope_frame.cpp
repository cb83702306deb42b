#include "Simulator/scope_frame.h"

#include <cmath>
#include <utility>
#include <vector>

namespace Orvo::Simulator {
namespace {

// The panel draws sample s at (1.07 s - 8.96) / 255 of the height of its scopes, 95 pixels. On
// these its grid has a mark every 10 pixels, for 30 V, the one for 0 V at 50.
constexpr double kHeight = 95;
constexpr double kPixelsPerVolt = 10.0 / 30;
constexpr double kSamplesPerPixel = 255 / (1.07 * kHeight);
constexpr double kZero = 50 * kSamplesPerPixel + 8.96 / 1.07;
constexpr double kSamplesPerVolt = kPixelsPerVolt * kSamplesPerPixel;

}  // namespace

Integer sampleOf(double volts) {
    return static_cast<Integer>(std::lround(kZero - volts * kSamplesPerVolt));
}

double voltsOf(Integer sample) { return (kZero - sample) / kSamplesPerVolt; }

IntegerArray scopeFrame(const std::function<double(double place)>& volts) {
    std::vector<Integer> samples;
    samples.reserve(kSamplesPerFrame);
    for (std::size_t i = 0; i < kSamplesPerFrame; ++i) {
        const double place = static_cast<double>(i) / (kSamplesPerFrame - 1);
        samples.push_back(sampleOf(volts(place)));
    }
    return {1, std::move(samples)};
}

}  // namespace Orvo::Simulator
