#pragma once

#include <cstdint>

#include "Orvo/values/error.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/kind.h"
#include "Orvo/widgets/reference.h"

namespace Orvo::Widgets {

enum class Cause : std::uint8_t {
    person,  ///< a person or the clock: nobody waits for an error
    code,    ///< the panel's own write: an error goes to the writer
};

struct Notification {
    WidgetId widget = 0;
    NotificationKind kind = NotificationKind::click;
    Cause cause = Cause::person;
    Integer keyCode = 0;  ///< keyPress only; a handler discards the key by setting it to 0
};

/// Where a runtime reports what a person did: the panel's one entry.
class NotificationSink {
public:
    virtual ~NotificationSink() = default;
    /// Throws only for Cause::code.
    virtual void notify(Notification& notification) = 0;
    /// What a person did ended with an error before, or after, it was notified.
    virtual void failed([[maybe_unused]] const Error& error) {}
};

}  // namespace Orvo::Widgets
