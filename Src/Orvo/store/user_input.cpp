#include "Orvo/store/user_input.h"

#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "Orvo/layout/layout.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/values/error.h"

namespace Orvo::Runtime {

using Widgets::Cause;
using Widgets::Kind;
using Widgets::NotificationKind;

namespace {

constexpr Integer kBackspace = 8;
constexpr Integer kCarriageReturn = 13;
constexpr Integer kSpace = 32;

bool activates(Kind kind, Integer code) {
    if (kind == Kind::button && code == kCarriageReturn) return true;
    return code == kSpace && (kind == Kind::button || kind == Kind::option || kind == Kind::check);
}

/// The kind of widget that the deed is done to; none: any.
std::optional<Kind> kindFor(Deed::Verb verb) {
    switch (verb) {
        case Deed::Verb::pick:
            return Kind::combo;
        case Deed::Verb::slide:
        case Deed::Verb::hold:
        case Deed::Verb::move:
        case Deed::Verb::drop:
            return Kind::slider;
        case Deed::Verb::tab:
            return Kind::tabs;
        default:
            return std::nullopt;
    }
}

}  // namespace

class UserInput::Doing {
public:
    Doing(UserInput& input, const Deed& deed) : input_(input), isTold_(input.observer_ != nullptr) {
        if (isTold_) input.observer_->does(deed);
    }
    ~Doing() {
        if (isTold_) input_.tell(&InputObserver::did);
    }
    Doing(const Doing&) = delete;
    Doing& operator=(const Doing&) = delete;

private:
    UserInput& input_;
    bool isTold_;
};

// Whatever a person does may bring the host to release the panel: the widgets live until it is
// over.
bool UserInput::perform(const Deed& deed) {
    const auto alive = store_.shared_from_this();
    try {
        return attempt(withinBounds(deed));
    } catch (const std::bad_alloc&) {
        store_.failed(Errors::outOfMemory());
        return false;
    }
}

bool UserInput::attempt(const Deed& deed) {
    if (!isTaken(deed)) return false;
    const Doing doing(*this, deed);
    if (deed.verb == Deed::Verb::key)
        return typeInto(deed.widget, static_cast<Integer>(deed.number));
    carryOut(deed);
    return true;
}

Deed UserInput::withinBounds(Deed deed) const {
    if (kindFor(deed.verb) == Kind::slider && Layout::kindOf(deed.widget) == Kind::slider) {
        deed.number = store_.get<StoredSlider>(deed.widget).state().within(deed.number);
    }
    return deed;
}

bool UserInput::isTaken(const Deed& deed) const {
    const auto kind = kindFor(deed.verb);
    if (kind && Layout::kindOf(deed.widget) != *kind) return false;
    if (!store_.acceptsInput(deed.widget)) return false;
    switch (deed.verb) {
        case Deed::Verb::pick:
            return store_.get<StoredCombo>(deed.widget).hasItem(deed.text);
        case Deed::Verb::move:
            return store_.get<StoredSlider>(deed.widget).state().position != deed.number;
        case Deed::Verb::drop:
            return store_.get<StoredSlider>(deed.widget).state().isHeld;
        case Deed::Verb::tab:
            return store_.get<StoredTabs>(deed.widget).isTabEnabled(deed.number);
        default:
            return true;
    }
}

void UserInput::carryOut(const Deed& deed) {
    switch (deed.verb) {
        case Deed::Verb::click:
            return goUp(deed.widget, deed.button, ReleasedWhere::onWidget);
        case Deed::Verb::release:
            return goUp(deed.widget, deed.button, ReleasedWhere::elsewhere);
        case Deed::Verb::pick:
            return pickItem(deed.widget, deed.text);
        case Deed::Verb::slide:
            return slideTo(deed.widget, deed.number);
        case Deed::Verb::hold:
        case Deed::Verb::drop:
            return setHeld(deed.widget, deed.verb == Deed::Verb::hold);
        case Deed::Verb::move:
            return moveTo(deed.widget, deed.number);
        case Deed::Verb::tab:
            return store_.at<StoredTabs>(deed.widget)
                .bringToFront(static_cast<Integer>(deed.number));
        default:
            return actOnClick(deed.widget);
    }
}

void UserInput::press(WidgetId widget, MouseButton button) {
    if (isSliderGrip(widget, button)) perform(Deed::hold(widget));
}

void UserInput::release(WidgetId widget, MouseButton button, ReleasedWhere where) {
    if (isSliderGrip(widget, button)) {
        perform(Deed::drop(widget));
        if (store_.acceptsInput(widget)) notify(widget, NotificationKind::release);
        return;
    }
    const auto verb = where == ReleasedWhere::onWidget ? Deed::Verb::click : Deed::Verb::release;
    perform({.verb = verb, .widget = widget, .button = button});
}

// A check box flips before the release is told, so that a host that answers the release with the
// state it finds has the last word.
void UserInput::goUp(WidgetId widget, MouseButton button, ReleasedWhere where) {
    if (isSliderGrip(widget, button)) setHeld(widget, false);
    if (button == MouseButton::left && where == ReleasedWhere::onWidget) actOnClick(widget);
    notify(widget, NotificationKind::release);
}

void UserInput::actOnClick(WidgetId widget) {
    switch (Layout::kindOf(widget)) {
        case Kind::option:
            return store_.at<StoredOption>(widget).select(Cause::person);
        case Kind::check:
            store_.at<StoredCheck>(widget).flip();
            [[fallthrough]];
        case Kind::button:
            return notify(widget, NotificationKind::click);
        default:
            return;
    }
}

// The panel may have made another key of it, or none.
bool UserInput::typeInto(WidgetId widget, Integer code) {
    const Integer left =
        store_.notify({.widget = widget, .kind = NotificationKind::keyPress, .keyCode = code})
            .keyCode;
    if (left != 0 && Layout::kindOf(widget) == Kind::combo) edit(widget, left);
    const bool isActivated = activates(Layout::kindOf(widget), left);
    if (isActivated && store_.acceptsInput(widget)) actOnClick(widget);
    return left != 0;
}

void UserInput::edit(WidgetId combo, Integer code) {
    auto& stored = store_.at<StoredCombo>(combo);
    String text = stored.state().text;
    if (code == kBackspace && !text.empty()) text.pop_back();
    if (static_cast<char16_t>(code) >= u' ') text += static_cast<char16_t>(code);
    stored.showText(text);
}

void UserInput::pickItem(WidgetId combo, const String& text) {
    store_.at<StoredCombo>(combo).showText(text);
    notify(combo, NotificationKind::click);
}

void UserInput::slideTo(WidgetId slider, int position) {
    setHeld(slider, true);
    moveTo(slider, position);
    setHeld(slider, false);
}

void UserInput::setHeld(WidgetId slider, bool isHeld) {
    store_.at<StoredSlider>(slider).hold(isHeld);
}

void UserInput::moveTo(WidgetId slider, int position) {
    if (store_.at<StoredSlider>(slider).moveTo(position)) notify(slider, NotificationKind::change);
}

bool UserInput::isSliderGrip(WidgetId widget, MouseButton button) const {
    return Layout::kindOf(widget) == Kind::slider && button == MouseButton::left;
}

void UserInput::notify(WidgetId widget, NotificationKind kind) {
    store_.notify({.widget = widget, .kind = kind});
}

}  // namespace Orvo::Runtime
