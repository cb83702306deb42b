#include "Script/panel_bench.h"

#include <utility>

namespace Orvo::Script {

InvokeResult PanelBench::invoke(Long dispatchId, MemberKind kind,
                                std::span<const Value> arguments) {
    return panel_->invoke(dispatchId, kind, arguments);
}

void PanelBench::take(MarvaneAssistant& panel, std::shared_ptr<Runtime::Store> store) {
    panel_ = &panel;
    store_ = std::move(store);
    store_->promptWith(this);
    events_ = panel_->connect([this](Long dispatchId, std::span<Value> arguments) {
        if (listener_ != nullptr) listener_->raised(eventWith(dispatchId), arguments);
    });
}

void PanelBench::takeErrors() {
    panel_->setErrorHandler([this](const Error& error) {
        if (listener_ != nullptr) listener_->failed(error);
    });
}

// Whatever a person does may bring a handler to renew the bench: the old widgets see to it
// themselves that they live until they are done.
void PanelBench::click(Widgets::WidgetId widget, Runtime::MouseButton button) {
    store_->input().click(widget, button);
}

void PanelBench::dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) {
    Runtime::UserInput& input = store_->input();
    input.press(widget, button);
    input.release(widget, button, Runtime::ReleasedWhere::elsewhere);
}

void PanelBench::activate(Widgets::WidgetId widget) { store_->input().activate(widget); }

void PanelBench::type(Widgets::WidgetId widget, Integer code) {
    store_->input().type(widget, code);
}

void PanelBench::pick(Widgets::WidgetId combo, const String& text) {
    store_->input().pick(combo, text);
}

void PanelBench::slide(Widgets::WidgetId slider, Integer position) {
    store_->input().slide(slider, position);
}

void PanelBench::hold(Widgets::WidgetId slider) { store_->input().hold(slider); }

void PanelBench::drop(Widgets::WidgetId slider) { store_->input().drop(slider); }

void PanelBench::selectTab(Integer tab) { store_->input().selectTab(Layout::kTabs.id, tab); }

void PanelBench::wait(std::chrono::milliseconds time) { store_->advance(time); }

std::optional<String> PanelBench::ask(const Widgets::Question& question) {
    return listener_ != nullptr ? listener_->asked(question) : std::nullopt;
}

}  // namespace Orvo::Script
