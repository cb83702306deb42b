#include "Simulator/scope_frame.h"

#include <cmath>
#include <utility>
#include <vector>

#include "Orvo/generator/grid.h"
#include "Orvo/widgets/trace.h"

namespace Orvo::Simulator {
namespace {

constexpr float kScopeHeight = 95;  // pixels

}  // namespace

Integer sampleOf(double volts) {
    const double y = gridY(volts, kScopeHeight);
    return static_cast<Integer>(std::lround(Widgets::sampleAt(y, double{kScopeHeight})));
}

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
