#pragma once

#include <span>

#include "Orvo/core/member_table.h"
#include "Orvo/values/error.h"

namespace Orvo {

/// Is told of what a host does with its panel. Each call of a member, direct or late-bound, is told
/// of twice: before it is carried out, and by its end. A late-bound call that reaches no member is
/// none.
class CallListener {
public:
    virtual ~CallListener() = default;
    virtual void called([[maybe_unused]] const Member& member,
                        [[maybe_unused]] std::span<const Value> arguments) {}
    /// No value when the member has no result.
    virtual void returned([[maybe_unused]] const Member& member,
                          [[maybe_unused]] const Value& result) {}
    virtual void failed([[maybe_unused]] const Member& member,
                        [[maybe_unused]] const Error& error) {}
};

}  // namespace Orvo
