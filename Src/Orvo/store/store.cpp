#include "Orvo/store/store.h"

#include <algorithm>
#include <utility>

namespace Orvo::Runtime {

using Layout::Kind;
using Widgets::Notification;
using Widgets::NotificationKind;

std::shared_ptr<Store> Store::create() { return std::shared_ptr<Store>(new Store); }

Store::Store() {
    for (WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        widgets_[id] = StoredKinds::visit(
            Layout::kindOf(id),
            [&]<class Stored>(std::type_identity<Stored> /*kind*/) { return make<Stored>(id); });
    }
}

template <class Stored>
std::unique_ptr<StoredWidget> Store::make(WidgetId id) {
    auto widget = std::make_unique<Stored>(*this, id);
    interfaces_[id] = widget.get();
    return widget;
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
    input_.tell(&InputObserver::asks);
    const std::optional<String> answer = prompter_->ask(question);
    input_.tell(&InputObserver::answered, answer);
    return answer.value_or(String());
}

bool Store::isShown(WidgetId id) const {
    for (; id != Layout::kPanel; id = Layout::describe(id).container) {
        if (!widgets_[id]->isVisible()) return false;
    }
    return true;
}

bool Store::acceptsInput(WidgetId id) const {
    if (!isShown(id)) return false;
    for (; id != Layout::kPanel; id = Layout::describe(id).container) {
        if (!widgets_[id]->isEnabled()) return false;
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
    input_.tell(&InputObserver::ticks);
    notify({.widget = timer.id(), .kind = NotificationKind::tick});
    input_.tell(&InputObserver::ticked);
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
