#include "Manager/Station/traces.h"

#include <charconv>
#include <cstddef>
#include <utility>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

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

template <class... Format>
std::string text(double value, Format... format) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...);
    return {digits.data(), end.ptr};
}

std::string withTwoDecimals(double value) { return text(value, std::chars_format::fixed, 2); }
std::string withSixDigits(double value) { return text(value, std::chars_format::general, 6); }

std::string headerOf(std::span<const ScopeTrace> traces) {
    std::string header = "# level (V) = " + withSixDigits(scopeScale().atZero) + " + sample * " +
                         withSixDigits(scopeScale().perCount) + '\n';
    for (const ScopeTrace& trace : traces) {
        header += "# channel " + std::to_string(trace.channel) + ": " +
                  (trace.interval ? withSixDigits(*trace.interval) + " s from sample to sample"
                                  : "time unknown") +
                  '\n';
    }
    return header + "channel,index,time (s),sample (counts),level (V)\n";
}

std::string lineOf(const ScopeTrace& trace, std::size_t place) {
    const Integer sample = trace.drawn()[place];
    const auto time = static_cast<double>(place) * trace.interval.value_or(0);
    return std::to_string(trace.channel) + ',' + std::to_string(place + 1) + ',' +
           (trace.interval ? withSixDigits(time) : "") + ',' + std::to_string(sample) + ',' +
           withTwoDecimals(scopeScale().volts(sample)) + '\n';
}

}  // namespace

std::span<const Integer> ScopeTrace::drawn() const { return samples.elementsFrom(kFirstDrawn); }
std::optional<WaveFigures> ScopeTrace::figures() const {
    return waveFigures(drawn(), scopeScale());
}

const SampleScale& scopeScale() {
    static const SampleScale scale = sampleScale(kSurfaceHeight);
    return scale;
}

Traces::Traces() {
    for (std::size_t i = 0; i < traces_.size(); ++i) {
        traces_[i].channel = static_cast<Integer>(i + 1);
    }
}

void Traces::startAnew() {
    for (ScopeTrace& trace : traces_) trace.samples = {};
    ++revision_;
}

void Traces::called(const Member& member, std::span<const Value> arguments) {
    if (&member == &kDrawTrace) {
        draw(std::get<Integer>(arguments[0]), std::get<IntegerArray>(arguments[1]));
    } else if (&member == &kDrawGrid) {
        const auto channel = std::get<Integer>(arguments[0]);
        draw(isChannel(channel) ? channel : Integer{1}, {});
    }
}

void Traces::draw(Integer channel, const IntegerArray& samples) {
    if (!isChannel(channel)) return;
    traces_[at(channel)].samples = samples;
    ++revision_;
}

void Traces::setInterval(Integer channel, std::optional<double> interval) {
    if (std::exchange(traces_[at(channel)].interval, interval) != interval) ++revision_;
}

const ScopeTrace& Traces::trace(Integer channel) const { return traces_[at(channel)]; }
bool Traces::has(Integer channel) const { return !trace(channel).drawn().empty(); }

std::string traceCsv(std::span<const ScopeTrace> traces) {
    std::string csv = headerOf(traces);
    for (const ScopeTrace& trace : traces) {
        for (std::size_t i = 0; i < trace.drawn().size(); ++i) csv += lineOf(trace, i);
    }
    return csv;
}

}  // namespace Orvo::Manager
