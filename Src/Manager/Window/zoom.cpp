#include "Manager/Window/zoom.h"

#include <algorithm>
#include <array>

namespace Orvo::Manager {
namespace {

constexpr auto kStops = std::to_array(
    {kSmallestZoom, 75, kPlainZoom, 125, 150, 175, 200, 250, 300, 400, 500, 600, kLargestZoom});

}  // namespace

int nextLarger(int zoom) {
    const auto* next = std::upper_bound(kStops.begin(), kStops.end(), zoom);
    return next == kStops.end() ? kLargestZoom : *next;
}

int nextSmaller(int zoom) {
    const auto* next = std::lower_bound(kStops.begin(), kStops.end(), zoom);
    return next == kStops.begin() ? kSmallestZoom : *std::prev(next);
}

}  // namespace Orvo::Manager
