#include "Orvo/store/store.h"

#include <algorithm>
#include <utility>

namespace Orvo::Runtime {

using Layout::Kind;
using Widgets::Notification;
using Widgets::NotificationKind;

class Store::StoredMousePointer final : public Widgets::MousePointer {
public:
    explicit StoredMousePointer(Store& store) : store_(store) {}

    void setPointer(Widgets::Pointer pointer) override {
        store_.observe({.verb = Verb::setPointer, .value = static_cast<Integer>(pointer)});
        if (std::exchange(store_.pointer_, pointer) != pointer) store_.changed(Layout::kNoWidget);
    }

private:
    Store& store_;
};

class Store::StoredPrompt final : public Widgets::InputPrompt {
public:
    explicit StoredPrompt(Store& store) : store_(store) {}

    String ask(const Widgets::Question& question) override {
        store_.observe({.verb = Verb::ask, .value = question.text});
        if (store_.prompter_ == nullptr) return {};
        const auto alive = store_.shared_from_this();
        store_.input_.tell(&InputObserver::asks);
        const std::optional<String> answer = store_.prompter_->ask(question);
        store_.input_.tell(&InputObserver::answered, answer);
        return answer.value_or(String());
    }

private:
    Store& store_;
};

std::shared_ptr<Store> Store::create() { return std::shared_ptr<Store>(new Store); }

Store::Store()
    : mousePointer_(std::make_unique<StoredMousePointer>(*this)),
      prompt_(std::make_unique<StoredPrompt>(*this)) {
    for (WidgetId id = 0; id < Layout::kWidgetCount; ++id) widgets_[id] = make(id);
}

Store::~Store() = default;

std::unique_ptr<StoredWidget> Store::make(WidgetId id) {
    switch (Layout::describe(id).style.kind) {
        case Kind::label:
            return std::make_unique<StoredLabel>(*this, id);
        case Kind::shape:
            return std::make_unique<StoredShape>(*this, id);
        case Kind::line:
            return std::make_unique<StoredLine>(*this, id);
        case Kind::button:
            return std::make_unique<StoredButton>(*this, id);
        case Kind::check:
            return std::make_unique<StoredCheck>(*this, id);
        case Kind::combo:
            return std::make_unique<StoredCombo>(*this, id);
        case Kind::list:
            return std::make_unique<StoredList>(*this, id);
        case Kind::picture:
            return std::make_unique<StoredPicture>(*this, id);
        case Kind::tabs:
            return std::make_unique<StoredTabs>(*this, id);
        case Kind::digit:
            return std::make_unique<StoredDigit>(*this, id);
        case Kind::slider: {
            auto slider = std::make_unique<StoredSlider>(*this, id);
            sliders_.push_back(slider.get());
            return slider;
        }
        case Kind::option: {
            auto option = std::make_unique<StoredOption>(*this, id);
            options_[Layout::describe(id).container].push_back(option.get());
            return option;
        }
        case Kind::timer: {
            auto timer = std::make_unique<StoredTimer>(*this, id);
            timers_.push_back(timer.get());
            return timer;
        }
        case Kind::frame:
        case Kind::image:
            break;
    }
    return std::make_unique<StoredStill>(*this, id);
}

Widgets::MousePointer& Store::mousePointer() { return *mousePointer_; }
Widgets::InputPrompt& Store::inputPrompt() { return *prompt_; }

bool Store::isShown(WidgetId id) const {
    for (; id != Layout::kNoWidget; id = Layout::describe(id).container) {
        if (!widgets_[id]->isVisible()) return false;
    }
    return true;
}

bool Store::acceptsInput(WidgetId id) const {
    if (!isShown(id)) return false;
    for (; id != Layout::kNoWidget; id = Layout::describe(id).container) {
        if (!widgets_[id]->isEnabled()) return false;
        const auto& widget = Layout::describe(id);
        if (widget.container == Layout::kNoWidget) return true;
        const bool isOnTab = Layout::describe(widget.container).style.kind == Kind::tabs;
        if (isOnTab && !get<StoredTabs>(widget.container).isTabEnabled(widget.tab)) return false;
    }
    return true;
}

Notification Store::notify(Notification notification) {
    if (sink_ != nullptr) sink_->notify(notification);
    return notification;
}

const std::vector<StoredOption*>& Store::optionsIn(WidgetId container) {
    return options_[container];
}

StoredTimer* Store::nextTimer() {
    StoredTimer* next = nullptr;
    for (StoredTimer* timer : timers_) {
        if (!timer->isEnabled()) continue;
        if (next == nullptr || timer->state().due < next->state().due) next = timer;
    }
    return next;
}

void Store::tick(const StoredTimer& timer) {
    input_.tell(&InputObserver::ticks);
    notify({.widget = timer.id(), .kind = NotificationKind::tick});
    input_.tell(&InputObserver::ticked);
}

void Store::letGoOfSliders() {
    for (StoredSlider* slider : sliders_) {
        if (slider->state().isHeld && !acceptsInput(slider->id())) slider->hold(false);
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
    std::optional<Milliseconds> least;
    for (const StoredTimer* timer : timers_) {
        if (!timer->isEnabled()) continue;
        const Milliseconds left = std::max(Milliseconds(0), timer->state().due - now());
        least = std::min(least.value_or(left), left);
    }
    return least;
}

}  // namespace Orvo::Runtime
