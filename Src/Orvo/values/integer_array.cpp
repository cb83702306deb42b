#include "Orvo/values/integer_array.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "Orvo/values/error.h"

namespace Orvo {
namespace {

constexpr std::int64_t kMostElements = std::numeric_limits<Long>::max();

std::size_t elementCount(const std::vector<IntegerArray::Bounds>& dimensions) {
    if (dimensions.empty()) return 0;
    std::int64_t count = 1;
    for (const auto& [lower, upper] : dimensions) {
        const std::int64_t extent = std::int64_t{upper} - lower + 1;
        if (extent < 0) throw Errors::invalidCall();
        if (extent != 0 && count > kMostElements / extent) throw Errors::overflow();
        count *= extent;
    }
    return static_cast<std::size_t>(count);
}

}  // namespace

IntegerArray::IntegerArray(Long lower, std::vector<Integer> elements)
    : elements_(std::move(elements)) {
    const auto upper = lower + static_cast<std::int64_t>(elements_.size()) - 1;
    if (upper < std::numeric_limits<Long>::min() || upper > kMostElements) {
        throw Errors::invalidCall();
    }
    dimensions_ = {{lower, static_cast<Long>(upper)}};
}

IntegerArray::IntegerArray(std::vector<Bounds> dimensions)
    : dimensions_(std::move(dimensions)), elements_(elementCount(dimensions_)) {}

IntegerArray::Bounds IntegerArray::bounds(std::size_t dimension) const {
    if (dimension == 0 || dimension > dimensions_.size()) throw Errors::subscriptOutOfRange();
    return dimensions_[dimension - 1];
}

std::span<const Integer> IntegerArray::elementsFrom(Long index) const {
    if (dimensions_.size() != 1 || dimensions_[0].lower > index) return {};
    const auto skipped = static_cast<std::size_t>(std::int64_t{index} - dimensions_[0].lower);
    return elements().subspan(std::min(skipped, elements_.size()));
}

}  // namespace Orvo
