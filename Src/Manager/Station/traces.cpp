#include "Manager/Station/traces.h"

#include <charconv>
#include <cstddef>

#include "Orvo/generator/grid.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/widgets/trace.h"

namespace Orvo::Manager {
namespace {

constexpr Integer kFirstDrawn = 1;
constexpr const Member& kDrawTrace = memberNamed<Integer, IntegerArray>("DisegnaFormaDOnda");
constexpr const Member& kDrawGrid = memberNamed<Integer>("DisegnaAssi");

constexpr bool isChannel(Integer channel) { return channel >= 1 && channel <= kChannels; }
constexpr std::size_t at(Integer channel) { return static_cast<std::size_t>(channel - 1); }

constexpr int kPictureHeight =
    Layout::describe(Layout::channel(1).scope).place.height / Layout::kTwipsPerPixel;
constexpr float kSurfaceHeight = kPictureHeight - 2 * Runtime::kPictureBorder;

double voltsOf(Integer sample) {
    return voltsAt(Widgets::traceY(sample, double{kSurfaceHeight}), kSurfaceHeight);
}

std::string withTwoDecimals(double value) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, 2);
    return {digits.data(), end.ptr};
}

}  // namespace

void Traces::called(const Member& member, std::span<const Value> arguments) {
    if (&member == &kDrawTrace) {
        draw(std::get<Integer>(arguments[0]), std::get<IntegerArray>(arguments[1]));
    } else if (&member == &kDrawGrid) {
        const auto channel = std::get<Integer>(arguments[0]);
        draw(isChannel(channel) ? channel : Integer{1}, {});
    }
}

void Traces::draw(Integer channel, const IntegerArray& samples) {
    if (isChannel(channel)) samples_[at(channel)] = samples;
}

const IntegerArray& Traces::samples(Integer channel) const { return samples_[at(channel)]; }
bool Traces::has(Integer channel) const {
    return !samples(channel).elementsFrom(kFirstDrawn).empty();
}

std::string traceCsv(const IntegerArray& samples) {
    const auto values = samples.elementsFrom(kFirstDrawn);
    std::string csv = "index,sample (counts),level (V)\n";
    for (std::size_t i = 0; i < values.size(); ++i) {
        csv += std::to_string(i + 1) + ',' + std::to_string(values[i]) + ',' +
               withTwoDecimals(voltsOf(values[i])) + '\n';
    }
    return csv;
}

}  // namespace Orvo::Manager
