#include "Orvo/store/stored_widgets.h"

#include <algorithm>
#include <cstddef>

#include "Orvo/store/store.h"
#include "Orvo/values/error.h"

namespace Orvo::Runtime {

using Widgets::Cause;
using Widgets::CheckValue;
using Widgets::FillStyle;
using Widgets::NotificationKind;

namespace {

constexpr std::size_t kUsualItems = 99;  // the amplifiers' ids

}  // namespace

Integer SliderState::within(int wanted) const {
    return static_cast<Integer>(std::clamp<int>(wanted, kMinimum, std::max(kMinimum, maximum)));
}

Integer SliderState::shown() const { return within(position); }

StoredWidget::StoredWidget(Store& store, WidgetId id)
    : store_(store),
      id_(id),
      isVisible_(Layout::describe(id).style.isVisible),
      isEnabled_(Layout::describe(id).style.isEnabled) {}

void StoredWidget::observe(Operation operation) const {
    operation.widget = id_;
    store_.observe(operation);
}

void StoredWidget::show(bool visible) {
    if (change(isVisible_, visible)) store_.letGoOfSliders();
}

void StoredWidget::enable(bool enabled) {
    if (change(isEnabled_, enabled)) store_.letGoOfSliders();
}

StoredLabel::StoredLabel(Store& store, WidgetId id) : StoredKind(store, id) {
    state_ = {String(description().caption), description().style.text};
}

String StoredLabel::caption() const { return read(Verb::readCaption, state_.caption); }
void StoredLabel::setCaption(const String& text) { write(Verb::setCaption, state_.caption, text); }
void StoredLabel::setColour(Colour text) { write(Verb::setColour, state_.colour, text); }

StoredShape::StoredShape(Store& store, WidgetId id) : StoredKind(store, id) {
    state_.fillStyle = description().style.isSolid ? FillStyle::solid : FillStyle::transparent;
}

FillStyle StoredShape::fillStyle() const { return read(Verb::readFillStyle, state_.fillStyle); }

void StoredShape::setFillStyle(FillStyle style) {
    write(Verb::setFillStyle, state_.fillStyle, style);
}

StoredLine::StoredLine(Store& store, WidgetId id) : StoredKind(store, id) {
    state_.colour = description().style.text;
}

void StoredLine::setColour(Colour colour) { write(Verb::setColour, state_.colour, colour); }

void StoredLine::setVisible(Boolean visible) {
    observe(Verb::setVisible, visible.raw());
    show(bool(visible));
}

StoredOption::StoredOption(Store& store, WidgetId id) : StoredEnableable(store, id) {
    state_.value = description().style.isSelected;
}

bool StoredOption::value() const { return read(Verb::readValue, state_.value); }

void StoredOption::setValue(bool value) {
    observe(Verb::setValue, Boolean(value).raw());
    value ? select(Cause::code) : clear();
}

void StoredOption::select(Cause cause) {
    change(state_.value, true);
    for (const WidgetId other : Layout::kAll<Kind::option>) {
        if (other != id() && Layout::areFellows(other, id()))
            store().at<StoredOption>(other).clear();
    }
    store().notify({.widget = id(), .kind = NotificationKind::click, .cause = cause});
}

void StoredCheck::setValue(CheckValue value) { write(Verb::setValue, state_.value, value); }

void StoredCheck::flip() {
    const bool wasChecked = state_.value == CheckValue::checked;
    change(state_.value, wasChecked ? CheckValue::unchecked : CheckValue::checked);
}

StoredCombo::StoredCombo(Store& store, WidgetId id) : StoredEnableable(store, id) {
    state_.text = String(description().caption);
}

void StoredCombo::addItem(const String& text) {
    observe(Verb::addItem, text);
    if (state_.items.empty()) state_.items.reserve(kUsualItems);
    state_.items.push_back(text);
    changed();
}

String StoredCombo::text() const { return read(Verb::readText, state_.text); }
void StoredCombo::setText(const String& text) { write(Verb::setText, state_.text, text); }

bool StoredCombo::hasItem(StringView text) const {
    return std::find(state_.items.begin(), state_.items.end(), text) != state_.items.end();
}

void StoredList::addItem(const String& text) {
    observe(Verb::addItem, text);
    const bool isFull = state_.items.size() == ListState::kMostItems ||
                        text.size() > ListState::kMostText - state_.text;
    if (isFull) throw Errors::outOfMemory();
    state_.items.push_back(text);
    state_.text += text.size();
    changed();
}

void StoredList::clear() {
    observe(Verb::clear);
    if (state_.items.empty()) return;
    state_.items.clear();
    state_.text = 0;
    ++state_.clears;
    changed();
}

StoredTimer::StoredTimer(Store& store, WidgetId id) : StoredEnableable(store, id) {
    state_.interval = state_.due = std::chrono::milliseconds(Layout::kTimerInterval);
}

void StoredTimer::enable(bool enabled) {
    if (enabled && !isEnabled()) state_.due = store().now() + state_.interval;
    StoredWidget::enable(enabled);
}

void StoredTimer::comeDue(std::chrono::milliseconds now) {
    state_.due += ((now - state_.due) / state_.interval + 1) * state_.interval;
    changed();
}

StoredTabs::StoredTabs(Store& store, WidgetId id) : StoredKind(store, id) {
    const bool isScope = !description().caption.empty();
    state_.enabled.assign(isScope ? 1 : Layout::kTabCaptions.size(), true);
}

std::size_t StoredTabs::checked(Integer tab) const {
    const auto index = static_cast<std::size_t>(tab);
    if (tab < 0 || index >= state_.enabled.size()) throw Errors::invalidCall();
    return index;
}

void StoredTabs::setCurrentTab(Integer tab) {
    observe(Verb::setCurrentTab, tab);
    bringToFront(static_cast<Integer>(checked(tab)));
}

Boolean StoredTabs::tabEnabled(Integer tab) const {
    observe({.verb = Verb::readTabEnabled, .tab = tab});
    return {bool{state_.enabled[checked(tab)]}};
}

void StoredTabs::setTabEnabled(Integer tab, Boolean enabled) {
    observe({.verb = Verb::setTabEnabled, .value = enabled.raw(), .tab = tab});
    const std::size_t index = checked(tab);
    if (state_.enabled[index] == bool(enabled)) return;
    state_.enabled[index] = bool(enabled);
    leaveDisabledTab();
    changed();
    store().letGoOfSliders();
}

bool StoredTabs::isTabEnabled(int tab) const {
    return tab >= 0 && static_cast<std::size_t>(tab) < state_.enabled.size() &&
           state_.enabled[static_cast<std::size_t>(tab)];
}

void StoredTabs::leaveDisabledTab() {
    for (int tab = state_.current; tab >= 0; --tab) {
        if (isTabEnabled(tab)) return bringToFront(static_cast<Integer>(tab));
    }
}

void StoredDigit::setDigit(Integer digit) {
    observe(Verb::setDigit, digit);
    if (digit < 0 || digit > 9) throw Errors::invalidCall();
    change(state_.digit, std::optional(digit));
}

Integer StoredSlider::position() const { return read(Verb::readPosition, state_.position); }

void StoredSlider::setPosition(Integer position) {
    write(Verb::setPosition, state_.position, position);
}

Boolean StoredSlider::buttonDown() const { return read(Verb::readButtonDown, state_.isHeld); }

void StoredSlider::setMaximum(Integer position) {
    write(Verb::setMaximum, state_.maximum, position);
}

bool StoredSlider::moveTo(int position) { return change(state_.position, state_.within(position)); }

}  // namespace Orvo::Runtime
