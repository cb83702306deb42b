#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "Orvo/core/interface.h"
#include "Simulator/figures.h"
#include "Simulator/message.h"

namespace Orvo::Manager {

/// What time it is, when the host has lived for so long.
using HostClock = std::function<std::string(Simulator::Milliseconds life)>;

/// What the host writes into the panel's message log.
class HostLog {
public:
    HostLog(MarvaneAssistantInterface& panel, HostClock clock)
        : panel_(panel), clock_(std::move(clock)) {}

    /// A line with the time before it.
    void tell(Simulator::Milliseconds now, std::string_view text);
    /// A line as it is.
    void add(std::string_view line);
    /// A reading that changed, if it is one that is worth a line.
    void tell(Simulator::Milliseconds now, const Simulator::Reading& reading);

private:
    MarvaneAssistantInterface& panel_;
    const HostClock clock_;
};

}  // namespace Orvo::Manager
