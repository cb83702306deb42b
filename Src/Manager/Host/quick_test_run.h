#pragma once

#include <optional>
#include <vector>

#include "Orvo/core/interface.h"
#include "Simulator/figures.h"
#include "Simulator/message.h"

namespace Orvo::Manager {

/// The quick test: holds what the amplifier reports against what a sound one would, a row of the
/// panel at a time. A row passes when every pair that is there does.
class QuickTestRun {
public:
    struct Result {
        int passed = 0;
        int rows = 0;
    };

    explicit QuickTestRun(MarvaneAssistantInterface& panel) : panel_(panel) {}

    /// Clears the rows and begins with the first.
    void begin(Simulator::Milliseconds now);
    /// The rows that have not been tested stay empty.
    void abandon() { next_.reset(); }
    [[nodiscard]] bool isRunning() const { return next_.has_value(); }

    /// Tests the next row once it is due. The result, after the last.
    std::optional<Result> step(Simulator::Milliseconds now,
                               const std::vector<Simulator::Reading>& readings);

private:
    MarvaneAssistantInterface& panel_;
    std::optional<Integer> next_;
    Simulator::Milliseconds due_{0};
    int passed_ = 0;
};

}  // namespace Orvo::Manager
