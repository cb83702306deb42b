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
    virtual void called(const Member& member, std::span<const Value> arguments) = 0;
    /// No value when the member has no result.
    virtual void returned(const Member& member, const Value& result) = 0;
    virtual void failed(const Member& member, const Error& error) = 0;
};

}  // namespace Orvo
