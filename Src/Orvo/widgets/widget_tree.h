#pragma once

#include "Orvo/values/types.h"
#include "Orvo/widgets/notification.h"
#include "Orvo/widgets/reference.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo::Widgets {

enum class Pointer : Integer { standard = 0, hourglass = 11 };

/// The screen's mouse pointer.
class MousePointer {
public:
    virtual ~MousePointer() = default;
    virtual void setPointer(Pointer pointer) = 0;
};

enum class Echo : std::uint8_t { shown, hidden };

struct Question {
    String text;
    String title;  ///< empty: the runtime chooses one
    Echo echo = Echo::shown;
};

/// Ends a prompt that nobody is left to answer, for instance because its window was closed: neither
/// typed nor cancelled.
struct PromptWithdrawn {};

/// A modal prompt for one line of text, its field empty at first.
class InputPrompt {
public:
    virtual ~InputPrompt() = default;
    /// The text typed, or an empty one when the person cancels. Timers tick and the host may call
    /// the panel, or release it, while the prompt is open. Throws PromptWithdrawn.
    virtual String ask(const Question& question) = 0;
};

/// The widgets of one panel, made from the layout, as the panel sees them.
class WidgetTree {
public:
    virtual ~WidgetTree() = default;

    template <Kind kKind>
    Interfaces::Of<kKind>& operator[](Ref<kKind> widget) {
        return static_cast<Interfaces::Of<kKind>&>(at(widget.id));
    }

    virtual MousePointer& mousePointer() = 0;
    virtual InputPrompt& inputPrompt() = 0;

    /// From now on notifications go to `sink`; to nobody when it is null.
    virtual void notifyTo(NotificationSink* sink) = 0;

private:
    /// The interface of the widget's kind.
    virtual Widget& at(WidgetId id) = 0;
};

}  // namespace Orvo::Widgets
