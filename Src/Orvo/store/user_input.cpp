#include "Orvo/store/user_input.h"

#include <algorithm>
#include <memory>

#include "Orvo/layout/layout.h"
#include "Orvo/store/store.h"

namespace Orvo::Runtime {

using Widgets::Cause;
using Widgets::Kind;
using Widgets::NotificationKind;

namespace {

constexpr Integer kBackspace = 8;
constexpr Integer kCarriageReturn = 13;
constexpr Integer kSpace = 32;

bool activates(Kind kind, Integer code) {
    switch (kind) {
        case Kind::button:
            return code == kSpace || code == kCarriageReturn;
        case Kind::option:
        case Kind::check:
            return code == kSpace;
        default:
            return false;
    }
}

}  // namespace

// Whatever a person does may bring the host to release the panel: the widgets live until it is
// over.
class UserInput::Doing {
public:
    Doing(UserInput& input, const Deed& deed, bool isTaken)
        : alive_(input.store_.shared_from_this()), input_(input), isTold_(isTaken) {
        isTold_ = isTold_ && input.observer_ != nullptr;
        if (isTold_) input.observer_->does(deed);
    }
    ~Doing() {
        if (isTold_) input_.tell(&InputObserver::did);
    }
    Doing(const Doing&) = delete;
    Doing& operator=(const Doing&) = delete;

private:
    std::shared_ptr<Store> alive_;
    UserInput& input_;
    bool isTold_;
};

void UserInput::press(WidgetId widget, MouseButton button) {
    if (isSliderGrip(widget, button)) hold(widget);
}

void UserInput::release(WidgetId widget, MouseButton button, ReleasedWhere where) {
    if (isSliderGrip(widget, button)) drop(widget);
    const auto verb = where == ReleasedWhere::onWidget ? Deed::Verb::click : Deed::Verb::dragOff;
    const bool isTaken = !isSliderGrip(widget, button) && store_.acceptsInput(widget);
    const Doing doing(*this, {.verb = verb, .widget = widget, .button = button}, isTaken);
    goUp(widget, button, where);
}

void UserInput::click(WidgetId widget, MouseButton button) {
    const Doing doing(*this, {.verb = Deed::Verb::click, .widget = widget, .button = button},
                      store_.acceptsInput(widget));
    goDown(widget, button);
    goUp(widget, button, ReleasedWhere::onWidget);
}

bool UserInput::isSliderGrip(WidgetId widget, MouseButton button) const {
    return isKind(widget, Kind::slider) && button == MouseButton::left;
}

bool UserInput::isHeld(WidgetId slider) const {
    return isKind(slider, Kind::slider) && store_.get<StoredSlider>(slider).state().isHeld;
}

void UserInput::goDown(WidgetId widget, MouseButton button) {
    if (isSliderGrip(widget, button)) setHeld(widget);
}

// A check box flips before the release is told, so that a host that answers the release with the
// state it finds has the last word.
void UserInput::goUp(WidgetId widget, MouseButton button, ReleasedWhere where) {
    if (isSliderGrip(widget, button)) letGo(widget);
    if (!store_.acceptsInput(widget)) return;
    if (button == MouseButton::left && where == ReleasedWhere::onWidget) actOnClick(widget);
    notify(widget, NotificationKind::release);
}

void UserInput::activate(WidgetId widget) {
    const bool isTaken = store_.acceptsInput(widget);
    const Doing doing(*this, {.verb = Deed::Verb::activate, .widget = widget}, isTaken);
    if (isTaken) actOnClick(widget);
}

void UserInput::actOnClick(WidgetId widget) {
    switch (Layout::describe(widget).style.kind) {
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

Integer UserInput::type(WidgetId widget, Integer code) {
    if (!store_.acceptsInput(widget)) return 0;
    const Doing doing(*this, {.verb = Deed::Verb::type, .widget = widget, .number = code}, true);
    const Integer left =
        store_.notify({.widget = widget, .kind = NotificationKind::keyPress, .keyCode = code})
            .keyCode;
    if (left != 0 && isKind(widget, Kind::combo)) edit(widget, left);
    const bool isActivated = activates(Layout::describe(widget).style.kind, left);
    if (isActivated && store_.acceptsInput(widget)) actOnClick(widget);
    return left;
}

void UserInput::edit(WidgetId combo, Integer code) {
    auto& stored = store_.at<StoredCombo>(combo);
    String text = stored.state().text;
    if (code == kBackspace && !text.empty()) text.pop_back();
    if (static_cast<char16_t>(code) >= u' ') text += static_cast<char16_t>(code);
    stored.showText(text);
}

void UserInput::pick(WidgetId combo, StringView text) {
    if (!isKind(combo, Kind::combo) || !store_.acceptsInput(combo)) return;
    auto& stored = store_.at<StoredCombo>(combo);
    const auto& items = stored.state().items;
    if (std::find(items.begin(), items.end(), text) == items.end()) return;
    const Doing doing(*this, {.verb = Deed::Verb::pick, .widget = combo, .text = text}, true);
    stored.showText(String(text));
    notify(combo, NotificationKind::click);
}

void UserInput::hold(WidgetId slider) {
    if (!isKind(slider, Kind::slider) || !store_.acceptsInput(slider)) return;
    const Doing doing(*this, {.verb = Deed::Verb::hold, .widget = slider}, true);
    setHeld(slider);
}

void UserInput::move(WidgetId slider, int position) {
    if (!isKind(slider, Kind::slider) || !store_.acceptsInput(slider)) return;
    const SliderState& state = store_.get<StoredSlider>(slider).state();
    const int within = state.within(position);
    const Doing doing(*this, {.verb = Deed::Verb::move, .widget = slider, .number = within},
                      within != state.position);
    moveTo(slider, position);
}

void UserInput::drop(WidgetId slider) {
    const Doing doing(*this, {.verb = Deed::Verb::drop, .widget = slider}, isHeld(slider));
    letGo(slider);
}

void UserInput::slide(WidgetId slider, int position) {
    if (!isKind(slider, Kind::slider)) return;
    const int within = store_.get<StoredSlider>(slider).state().within(position);
    const Doing doing(*this, {.verb = Deed::Verb::slide, .widget = slider, .number = within},
                      store_.acceptsInput(slider));
    setHeld(slider);
    moveTo(slider, position);
    letGo(slider);
}

void UserInput::setHeld(WidgetId slider) {
    if (store_.acceptsInput(slider)) store_.at<StoredSlider>(slider).hold(true);
}

void UserInput::moveTo(WidgetId slider, int position) {
    if (!store_.acceptsInput(slider)) return;
    if (store_.at<StoredSlider>(slider).moveTo(position)) notify(slider, NotificationKind::change);
}

void UserInput::letGo(WidgetId slider) {
    if (isKind(slider, Kind::slider)) store_.at<StoredSlider>(slider).hold(false);
}

void UserInput::selectTab(WidgetId tabs, int tab) {
    if (!isKind(tabs, Kind::tabs) || !store_.acceptsInput(tabs)) return;
    auto& stored = store_.at<StoredTabs>(tabs);
    if (!stored.isTabEnabled(tab)) return;
    const Doing doing(*this, {.verb = Deed::Verb::selectTab, .widget = tabs, .number = tab}, true);
    stored.bringToFront(static_cast<Integer>(tab));
}

void UserInput::notify(WidgetId widget, NotificationKind kind) {
    store_.notify({.widget = widget, .kind = kind});
}

bool UserInput::isKind(WidgetId widget, Kind kind) const {
    return Layout::describe(widget).style.kind == kind;
}

}  // namespace Orvo::Runtime
