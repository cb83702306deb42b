#pragma once

#include <string_view>

#include "Orvo/core/interface.h"
#include "Simulator/figures.h"
#include "Simulator/message.h"

namespace Orvo::Manager {

/// What the host writes into the panel's message log. It begins afresh before the log gets too
/// long, as the panel keeps every line.
class HostLog {
public:
    explicit HostLog(MarvaneAssistantInterface& panel) : panel_(panel) {}

    /// A line with the time of the host's life before it.
    void tell(Simulator::Milliseconds now, std::string_view text);
    /// A line as it is.
    void add(std::string_view line);
    /// A reading that changed, if it is one that is worth a line.
    void tell(Simulator::Milliseconds now, const Simulator::Reading& reading);
    /// The panel has emptied the log.
    void emptied() { lines_ = 0; }

private:
    MarvaneAssistantInterface& panel_;
    int lines_ = 0;
};

}  // namespace Orvo::Manager
