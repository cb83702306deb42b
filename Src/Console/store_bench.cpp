#include "Console/store_bench.h"

#include <algorithm>
#include <utility>

namespace Orvo::Console {
namespace {

const Event& eventOf(Long dispatchId) {
    return *std::find_if(kEvents.begin(), kEvents.end(), [dispatchId](const Event& event) {
        return event.dispatchId == dispatchId;
    });
}

}  // namespace

StoreBench::StoreBench() { renew(); }

InvokeResult StoreBench::invoke(Long dispatchId, MemberKind kind,
                                std::span<const Value> arguments) {
    return panel_->invoke(dispatchId, kind, arguments);
}

void StoreBench::renew() {
    panel_.reset();
    store_ = Runtime::Store::create();
    store_->promptWith(this);
    panel_ = std::make_unique<MarvaneAssistant>(store_);
    panel_->setErrorHandler([this](const Error& error) {
        if (listener_ != nullptr) listener_->failed(error);
    });
    events_ = panel_->connect([this](Long dispatchId, std::span<Value> arguments) {
        if (listener_ != nullptr) listener_->raised(eventOf(dispatchId), arguments);
    });
}

void StoreBench::shoot(const String& /*file*/) {
    throw Error(70, "There is no window to take a picture of");
}

// Whatever a person does may bring a handler to renew the bench: the old widgets see to it
// themselves that they live until they are done.
void StoreBench::click(Widgets::WidgetId widget, Runtime::MouseButton button) {
    store_->input().click(widget, button);
}

void StoreBench::dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) {
    Runtime::UserInput& input = store_->input();
    input.press(widget, button);
    input.release(widget, button, Runtime::ReleasedWhere::elsewhere);
}

void StoreBench::activate(Widgets::WidgetId widget) { store_->input().activate(widget); }

void StoreBench::type(Widgets::WidgetId widget, Integer code) {
    store_->input().type(widget, code);
}

void StoreBench::pick(Widgets::WidgetId combo, const String& text) {
    store_->input().pick(combo, text);
}

void StoreBench::slide(Widgets::WidgetId slider, Integer position) {
    store_->input().slide(slider, position);
}

void StoreBench::hold(Widgets::WidgetId slider) { store_->input().hold(slider); }

void StoreBench::drop(Widgets::WidgetId slider) { store_->input().drop(slider); }

void StoreBench::selectTab(Integer tab) { store_->input().selectTab(Layout::kTabs.id, tab); }

void StoreBench::wait(std::chrono::milliseconds time) { store_->advance(time); }

std::optional<String> StoreBench::ask(const Widgets::Question& question) {
    return listener_ != nullptr ? listener_->asked(question) : std::nullopt;
}

}  // namespace Orvo::Console
