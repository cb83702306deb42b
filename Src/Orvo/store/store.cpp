#include "Orvo/store/store.h"

#include <algorithm>
#include <new>
#include <utility>

#include "Orvo/layout/layout.h"
#include "Orvo/store/user_input.h"
#include "Orvo/store/widget_block.h"
#include "Orvo/values/error.h"

namespace Orvo::Runtime {

using Layout::Kind;
using Widgets::Notification;
using Widgets::NotificationKind;

struct Store::Parts {
    explicit Parts(Store& store) : input(store), widgets(store) {}

    UserInput input;
    WidgetBlock widgets;
};

std::shared_ptr<Store> Store::create() try {
    return std::shared_ptr<Store>(new Store);
} catch (const std::bad_alloc&) {
    throw Errors::outOfMemory();
}

Store::Store() : parts_(std::make_unique<Parts>(*this)) {}
Store::~Store() = default;

UserInput& Store::input() { return parts_->input; }
bool Store::perform(const Deed& deed) { return parts_->input.perform(deed); }

Widgets::Widget& Store::at(WidgetId id) { return parts_->widgets.interfaceOf(id); }
StoredWidget& Store::stored(WidgetId id) const { return parts_->widgets[id]; }
void Store::show(WidgetId id, bool visible) { stored(id).show(visible); }
void Store::enable(WidgetId id, bool enabled) { stored(id).enable(enabled); }

void Store::observe(const Operation& operation) const {
    if (observer_ != nullptr) observer_->before(operation);
}

void Store::setPointer(Widgets::Pointer pointer) {
    observe({.verb = Verb::setPointer, .value = static_cast<Integer>(pointer)});
    const bool isChanged = std::exchange(pointer_, pointer) != pointer;
    if (isChanged && screen_ != nullptr) screen_->pointerChanged();
}

String Store::ask(const Widgets::Question& question) {
    observe({.verb = Verb::ask, .value = question.text});
    if (prompter_ == nullptr) return {};
    const auto alive = shared_from_this();
    parts_->input.tell(&InputObserver::asks);
    const std::optional<String> answer = prompter_->ask(question);
    parts_->input.tell(&InputObserver::answered, answer);
    return answer.value_or(String());
}

bool Store::isShown(WidgetId id) const {
    for (; id != Layout::kPanel; id = Layout::describe(id).container) {
        if (!stored(id).isVisible()) return false;
    }
    return true;
}

bool Store::acceptsInput(WidgetId id) const {
    if (!isShown(id)) return false;
    for (; id != Layout::kPanel; id = Layout::describe(id).container) {
        if (!stored(id).isEnabled()) return false;
        const auto& widget = Layout::describe(id);
        if (widget.container == Layout::kPanel) return true;
        const bool isOnTab = Layout::kindOf(widget.container) == Kind::tabs;
        if (isOnTab && !get<StoredTabs>(widget.container).isTabEnabled(widget.tab)) return false;
    }
    return true;
}

Notification Store::notify(Notification notification) {
    if (sink_ != nullptr) sink_->notify(notification);
    return notification;
}

void Store::failed(const Error& error) {
    if (sink_ != nullptr) sink_->failed(error);
}

StoredTimer* Store::nextTimer() const {
    StoredTimer* next = nullptr;
    for (const WidgetId id : Layout::kAll<Kind::timer>) {
        auto& timer = at<StoredTimer>(id);
        if (!timer.isEnabled()) continue;
        if (next == nullptr || timer.state().due < next->state().due) next = &timer;
    }
    return next;
}

void Store::tick(const StoredTimer& timer) {
    parts_->input.tell(&InputObserver::ticks);
    notify({.widget = timer.id(), .kind = NotificationKind::tick});
    parts_->input.tell(&InputObserver::ticked);
}

void Store::letGoOfSliders() {
    for (const WidgetId id : Layout::kAll<Kind::slider>) {
        auto& slider = at<StoredSlider>(id);
        if (slider.state().isHeld && !acceptsInput(id)) slider.hold(false);
    }
}

void Store::advance(Milliseconds time) {
    const auto alive = shared_from_this();
    const Milliseconds end = now_ + time;
    for (auto* timer = nextTimer(); timer != nullptr && timer->state().due <= end;
         timer = nextTimer()) {
        now_ = std::max(now_, timer->state().due);
        timer->comeDue(timer->state().due);
        tick(*timer);
    }
    now_ = std::max(now_, end);
}

void Store::catchUp(Milliseconds time) {
    const auto alive = shared_from_this();
    now_ += time;
    for (auto* timer = nextTimer(); timer != nullptr && timer->state().due <= now_;
         timer = nextTimer()) {
        timer->comeDue(now_);
        tick(*timer);
    }
}

std::optional<Store::Milliseconds> Store::untilNextTick() const {
    const StoredTimer* next = nextTimer();
    if (next == nullptr) return std::nullopt;
    return std::max(Milliseconds(0), next->state().due - now());
}

}  // namespace Orvo::Runtime
