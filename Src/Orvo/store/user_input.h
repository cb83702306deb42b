#pragma once

#include <cstdint>

#include "Orvo/store/input_observer.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/kind.h"
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

    /// A slider goes no further than its bounds, and a move that changes the position notifies.
    /// False when nothing comes of it: the widget ignores it or is of another kind, an item is not
    /// in the list, a tab is disabled, a slider is there already or not held, or the panel discards
    /// the key.
    bool perform(Deed deed);

    void click(WidgetId widget, MouseButton button = MouseButton::left) {
        perform({.verb = Deed::Verb::click, .widget = widget, .button = button});
    }
    void activate(WidgetId widget) { perform({.verb = Deed::Verb::activate, .widget = widget}); }
    bool type(WidgetId widget, Integer code) {
        const auto unit = static_cast<std::uint16_t>(code);
        return perform({.verb = Deed::Verb::key, .widget = widget, .number = unit});
    }
    void pick(WidgetId combo, StringView text) {
        perform({.verb = Deed::Verb::pick, .widget = combo, .text = String(text)});
    }
    void slide(WidgetId slider, int position) {
        perform({.verb = Deed::Verb::slide, .widget = slider, .number = position});
    }
    void hold(WidgetId slider) { perform({.verb = Deed::Verb::hold, .widget = slider}); }
    void move(WidgetId slider, int position) {
        perform({.verb = Deed::Verb::move, .widget = slider, .number = position});
    }
    void drop(WidgetId slider) { perform({.verb = Deed::Verb::drop, .widget = slider}); }
    void selectTab(WidgetId tabs, int tab) {
        perform({.verb = Deed::Verb::tab, .widget = tabs, .number = tab});
    }

    /// A mouse button goes down on a widget; it gets the release, wherever that happens.
    void press(WidgetId widget, MouseButton button = MouseButton::left);
    void release(WidgetId widget, MouseButton button = MouseButton::left,
                 ReleasedWhere where = ReleasedWhere::onWidget);

    /// Who sees all this; null takes it away again.
    void observeWith(InputObserver* observer) { observer_ = observer; }

private:
    friend class Store;
    class Doing;

    [[nodiscard]] Deed withinBounds(Deed deed) const;
    [[nodiscard]] bool isTaken(const Deed& deed) const;
    void carryOut(const Deed& deed);

    void goUp(WidgetId widget, MouseButton button, ReleasedWhere where);
    void actOnClick(WidgetId widget);
    bool typeInto(WidgetId widget, Integer code);
    void edit(WidgetId combo, Integer code);
    void pickItem(WidgetId combo, const String& text);
    void slideTo(WidgetId slider, int position);
    void setHeld(WidgetId slider, bool isHeld);
    void moveTo(WidgetId slider, int position);

    [[nodiscard]] bool isSliderGrip(WidgetId widget, MouseButton button) const;
    void notify(WidgetId widget, Widgets::NotificationKind kind);
    /// Tells the observer, if there is one.
    template <class... Arguments>
    void tell(void (InputObserver::*what)(const Arguments&...), const Arguments&... arguments) {
        if (observer_ != nullptr) (observer_->*what)(arguments...);
    }

    Store& store_;
    InputObserver* observer_ = nullptr;
};

}  // namespace Orvo::Runtime
