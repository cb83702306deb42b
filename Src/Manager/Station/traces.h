#pragma once

#include <array>
#include <span>
#include <string>

#include "Orvo/core/call_listener.h"

namespace Orvo::Manager {

constexpr Integer kChannels = 4;

/// The samples that each channel's scope shows at this moment, as the host sent them.
class Traces final : public CallListener {
public:
    void called(const Member& member, std::span<const Value> arguments) override;
    /// The panel is another one, whose scopes are empty.
    void startAnew() { samples_ = {}; }

    /// No dimension when the scope shows no trace. Channels are 1 to 4.
    [[nodiscard]] const IntegerArray& samples(Integer channel) const;
    [[nodiscard]] bool has(Integer channel) const;

private:
    void draw(Integer channel, const IntegerArray& samples);

    std::array<IntegerArray, kChannels> samples_;
};

/// The samples as comma-separated values, a line each below a header with the units; the level is
/// read off the scope's own scale, in volts. Numbers have a point in every locale. Samples that a
/// scope doesn't draw, those with index 0 and below, are left out.
std::string traceCsv(const IntegerArray& samples);

}  // namespace Orvo::Manager
