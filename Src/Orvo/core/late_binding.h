#pragma once

#include <optional>
#include <string_view>

#include "Orvo/core/member_table.h"
#include "Orvo/export.h"
#include "Orvo/values/error.h"

namespace Orvo {

/// The outcome of a late-bound call: a result, or the error that ended it. An exception of another
/// kind is an error as well: 7 for want of memory, 1003 otherwise.
struct InvokeResult {
    Value value{};
    std::optional<Error> error{};
};

/// The dispatch id of a member, without regard to case.
ORVO_EXPORT std::optional<Long> dispatchIdOf(std::string_view name);

/// The member with this dispatch id and kind. Error 438 when there is none, error 383 when it is
/// written but can only be read, error 394 when it is read but can only be written.
ORVO_EXPORT const Member& findMember(Long dispatchId, MemberKind kind);

}  // namespace Orvo
