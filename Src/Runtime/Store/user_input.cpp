#include "Runtime/Store/user_input.h"

#include <algorithm>

#include "Orvo/layout/layout.h"
#include "Runtime/Store/store.h"

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

void UserInput::press(WidgetId widget, MouseButton button) {
    if (isKind(widget, Kind::slider) && button == MouseButton::left) hold(widget);
}

// A check box flips before the release is told, so that a host that answers the release with the
// state it finds has the last word.
void UserInput::release(WidgetId widget, MouseButton button, ReleasedWhere where) {
    const auto alive = store_.shared_from_this();
    if (isKind(widget, Kind::slider) && button == MouseButton::left) drop(widget);
    if (!store_.acceptsInput(widget)) return;
    if (button == MouseButton::left && where == ReleasedWhere::onWidget) actOnClick(widget);
    notify(widget, NotificationKind::release);
}

void UserInput::click(WidgetId widget, MouseButton button) {
    press(widget, button);
    release(widget, button);
}

void UserInput::activate(WidgetId widget) {
    const auto alive = store_.shared_from_this();
    if (store_.acceptsInput(widget)) actOnClick(widget);
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
    const auto alive = store_.shared_from_this();
    if (!store_.acceptsInput(widget)) return 0;
    const Integer left =
        store_.notify({.widget = widget, .kind = NotificationKind::keyPress, .keyCode = code})
            .keyCode;
    if (left != 0 && isKind(widget, Kind::combo)) edit(widget, left);
    if (activates(Layout::describe(widget).style.kind, left)) activate(widget);
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
    const auto alive = store_.shared_from_this();
    if (!isKind(combo, Kind::combo) || !store_.acceptsInput(combo)) return;
    auto& stored = store_.at<StoredCombo>(combo);
    const auto& items = stored.state().items;
    if (std::find(items.begin(), items.end(), text) == items.end()) return;
    stored.showText(String(text));
    notify(combo, NotificationKind::click);
}

void UserInput::hold(WidgetId slider) {
    if (isKind(slider, Kind::slider) && store_.acceptsInput(slider)) {
        store_.at<StoredSlider>(slider).hold(true);
    }
}

void UserInput::move(WidgetId slider, int position) {
    const auto alive = store_.shared_from_this();
    if (!isKind(slider, Kind::slider) || !store_.acceptsInput(slider)) return;
    if (store_.at<StoredSlider>(slider).moveTo(position)) notify(slider, NotificationKind::change);
}

void UserInput::drop(WidgetId slider) {
    if (isKind(slider, Kind::slider)) store_.at<StoredSlider>(slider).hold(false);
}

void UserInput::slide(WidgetId slider, int position) {
    const auto alive = store_.shared_from_this();
    hold(slider);
    move(slider, position);
    drop(slider);
}

void UserInput::selectTab(WidgetId tabs, int tab) {
    if (!isKind(tabs, Kind::tabs) || !store_.acceptsInput(tabs)) return;
    auto& stored = store_.at<StoredTabs>(tabs);
    if (stored.isTabEnabled(tab)) stored.bringToFront(static_cast<Integer>(tab));
}

void UserInput::notify(WidgetId widget, NotificationKind kind) {
    store_.notify({.widget = widget, .kind = kind});
}

bool UserInput::isKind(WidgetId widget, Kind kind) const {
    return Layout::describe(widget).style.kind == kind;
}

}  // namespace Orvo::Runtime
