#pragma once

#include <cstdint>

#include "Orvo/export.h"
#include "Orvo/store/input_observer.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/notification.h"

namespace Orvo::Runtime {

class Store;
using Widgets::WidgetId;

/// Where the pointer is when a button is released.
enum class ReleasedWhere : std::uint8_t { onWidget, elsewhere };

/// What a person does to the widgets.
class UserInput {
public:
    explicit UserInput(Store& store) : store_(store) {}

    /// A mouse button goes down on a widget; it gets the release, wherever that happens.
    ORVO_OWN_EXPORT void press(WidgetId widget, MouseButton button = MouseButton::left);
    ORVO_OWN_EXPORT void release(WidgetId widget, MouseButton button = MouseButton::left,
                                 ReleasedWhere where = ReleasedWhere::onWidget);

    /// Who sees all this; null takes it away again.
    void observeWith(InputObserver* observer) { observer_ = observer; }

private:
    friend class Store;
    class Doing;

    bool perform(const Deed& deed);
    bool attempt(const Deed& deed);
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
