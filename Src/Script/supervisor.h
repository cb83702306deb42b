#pragma once

#include <chrono>
#include <cstddef>

#include "Script/argument_types.h"

namespace Orvo::Script {

/// What holds a host that isn't trusted within its bounds.
class Supervisor {
public:
    virtual ~Supervisor() = default;

    /// Before each of its calls, late-bound ones and those of handlers too. Throws Error for one
    /// that isn't to be made.
    virtual void permit(const Call& call) = 0;
    /// What is kept of what it said, in bytes, the message log and the session's own apart.
    [[nodiscard]] virtual std::size_t keptElsewhere() const = 0;
    [[nodiscard]] virtual std::chrono::steady_clock::time_point now() = 0;
};

}  // namespace Orvo::Script
