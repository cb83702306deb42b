#pragma once

#include <cstdint>
#include <optional>

#include "Orvo/values/types.h"
#include "Orvo/widgets/notification.h"

namespace Orvo::Runtime {

enum class MouseButton : std::uint8_t { left, right, middle };

/// Something that a person does to a widget that takes it.
struct Deed {
    enum class Verb : std::uint8_t {
        click,    ///< a button goes down and up on the widget
        dragOff,  ///< the same, but it comes up elsewhere
        activate,
        type,
        pick,
        slide,
        hold,
        move,
        drop,
        selectTab,
    };

    Verb verb = Verb::click;
    Widgets::WidgetId widget{};
    MouseButton button = MouseButton::left;  ///< click and dragOff
    int number = 0;     ///< the code that is typed, a slider's position within its bounds, a tab
    StringView text{};  ///< the item that is picked; valid during the call only
};

/// Sees what comes to a panel from elsewhere than its host: what a person does, and the ticks of
/// its timers. A press that does nothing yet is told of with its release.
class InputObserver {
public:
    virtual ~InputObserver() = default;
    /// Before it is done; what a person does while a prompt is open comes between this and `did`.
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
