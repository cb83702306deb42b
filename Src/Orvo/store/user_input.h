#pragma once

#include <cstdint>

#include "Orvo/store/input_observer.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/notification.h"

namespace Orvo::Runtime {

class Store;
using Widgets::WidgetId;

/// Where the pointer is when a button is released.
enum class ReleasedWhere : std::uint8_t { onWidget, elsewhere };

/// What a person does to the widgets. A widget that is hidden or disabled, by itself or through
/// what contains it, ignores it; which tab is in front doesn't matter.
class UserInput {
public:
    explicit UserInput(Store& store) : store_(store) {}

    /// A mouse button goes down on a widget; it gets the release, wherever that happens.
    void press(WidgetId widget, MouseButton button = MouseButton::left);
    void release(WidgetId widget, MouseButton button = MouseButton::left,
                 ReleasedWhere where = ReleasedWhere::onWidget);
    /// Both in one: press and release on the widget.
    void click(WidgetId widget, MouseButton button = MouseButton::left);

    /// The widget is activated from the keyboard.
    void activate(WidgetId widget);
    /// A character is typed while the widget has the focus. The code as the panel leaves it: 0 when
    /// it is discarded, or the widget ignores it.
    Integer type(WidgetId widget, Integer code);

    /// The item with this text is picked from a combo box's list; none such, and nothing happens.
    void pick(WidgetId combo, StringView text);

    /// A slider's button goes down, moves (clamped to the bounds) and goes up. A move that changes
    /// the position notifies, held or not.
    void hold(WidgetId slider);
    void move(WidgetId slider, int position);
    void drop(WidgetId slider);
    void slide(WidgetId slider, int position);

    /// A tab is selected, unless it is disabled.
    void selectTab(WidgetId tabs, int tab);

    /// Who sees all this; null takes it away again.
    void observeWith(InputObserver* observer) { observer_ = observer; }

private:
    friend class Store;
    class Doing;

    // As above, but nobody is told.
    void goDown(WidgetId widget, MouseButton button);
    void goUp(WidgetId widget, MouseButton button, ReleasedWhere where);
    void setHeld(WidgetId slider);
    void moveTo(WidgetId slider, int position);
    void letGo(WidgetId slider);

    [[nodiscard]] bool isSliderGrip(WidgetId widget, MouseButton button) const;
    [[nodiscard]] bool isHeld(WidgetId slider) const;
    /// Tells the observer, if there is one.
    template <class... Arguments>
    void tell(void (InputObserver::*what)(const Arguments&...), const Arguments&... arguments) {
        if (observer_ != nullptr) (observer_->*what)(arguments...);
    }
    void actOnClick(WidgetId widget);
    void notify(WidgetId widget, Widgets::NotificationKind kind);
    [[nodiscard]] bool isKind(WidgetId widget, Widgets::Kind kind) const;
    void edit(WidgetId combo, Integer code);

    Store& store_;
    InputObserver* observer_ = nullptr;
};

}  // namespace Orvo::Runtime
