#include "Simulator/scope_frame.h"

#include <algorithm>
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

IntegerArray scopeFrame(const ScopeLine& volts) {
    std::vector<Integer> samples(volts.size());
    std::ranges::transform(volts, samples.begin(), sampleOf);
    return {1, std::move(samples)};
}

}  // namespace Orvo::Simulator
