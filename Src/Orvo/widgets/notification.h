#pragma once

#include <cstdint>

#include "Orvo/values/types.h"
#include "Orvo/widgets/reference.h"

namespace Orvo::Widgets {

/// What a widget tells the panel.
enum class NotificationKind : std::uint8_t {
    creation,  ///< the panel itself: its widgets stand, as laid out
    click,     ///< clicked, activated from the keyboard, selected or picked
    release,   ///< a mouse button that was pressed on the widget is released, wherever the pointer
               ///< is
    keyPress,  ///< a character is typed while the widget has the focus
    tick,      ///< a timer came due
    change,    ///< a person moved a slider
};

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
};

}  // namespace Orvo::Widgets
