#pragma once

#include <optional>

#include "Orvo/store/deed.h"
#include "Orvo/values/types.h"

namespace Orvo::Runtime {

/// Sees what comes to a panel from elsewhere than its host: what a person does, and the ticks of
/// its timers. A press that does nothing yet is told of with its release. It throws nothing.
class InputObserver {
public:
    virtual ~InputObserver() = default;
    /// Before it is done; a slider's position is within its bounds. What a person does while a
    /// prompt is open comes between this and `did`.
    virtual void does(const Deed& deed) = 0;
    virtual void did() = 0;
    /// A prompt opens.
    virtual void asks() = 0;
    /// What the person made of it; none: cancelled it. A prompt that is withdrawn has no answer.
    virtual void answered(const std::optional<String>& answer) = 0;
    /// Before a timer's tick is told to the panel, and after.
    virtual void ticks() = 0;
    virtual void ticked() = 0;
};

}  // namespace Orvo::Runtime
