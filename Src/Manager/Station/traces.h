#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "Orvo/core/call_listener.h"
#include "Orvo/generator/wave_figures.h"

namespace Orvo::Manager {

constexpr Integer kChannels = 4;

/// A channel's trace as the host sent it.
struct ScopeTrace {
    Integer channel = 1;
    IntegerArray samples;  ///< no dimension: the scope shows none
    /// From one sample to the next, in seconds. The panel isn't told of it: none when the device
    /// doesn't say.
    std::optional<double> interval;

    /// The samples that the scope draws.
    [[nodiscard]] std::span<const Integer> drawn() const;
    [[nodiscard]] std::optional<WaveFigures> figures() const;
};

/// What the panel's scopes read.
const SampleScale& scopeScale();

/// The traces that the scopes show at this moment.
class Traces final : public CallListener {
public:
    Traces();
    void called(const Member& member, std::span<const Value> arguments) override;
    /// The panel is another one, whose scopes are empty.
    void startAnew();
    void setInterval(Integer channel, std::optional<double> interval);

    /// Channels are 1 to 4.
    [[nodiscard]] const ScopeTrace& trace(Integer channel) const;
    [[nodiscard]] bool has(Integer channel) const;
    /// Another one after each change.
    [[nodiscard]] std::uint64_t revision() const { return revision_; }

private:
    void draw(Integer channel, const IntegerArray& samples);

    std::array<ScopeTrace, kChannels> traces_;
    std::uint64_t revision_ = 0;
};

/// The samples as comma-separated values, a line each. Above them stand the calibration, how far
/// apart each channel's samples are, behind "#", and the columns with their units; the time is
/// empty where nobody knows it, and the level is read off the scope's own scale. Numbers have a
/// point in every locale. Samples that a scope doesn't draw, those with index 0 and below, are left
/// out.
std::string traceCsv(std::span<const ScopeTrace> traces);

}  // namespace Orvo::Manager
