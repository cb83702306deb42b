#pragma once

#include <memory>
#include <optional>

#include "Console/bench.h"
#include "Orvo/core/marvane_assistant.h"

namespace Orvo::Console {

/// A panel on the store alone: no window, and a clock that only the person's waiting moves.
class StoreBench final : public Bench, private Person, private Runtime::Prompter {
public:
    StoreBench();

    void tell(PanelListener* listener) override { listener_ = listener; }
    InvokeResult invoke(Long dispatchId, MemberKind kind,
                        std::span<const Value> arguments) override;
    Person& person() override { return *this; }
    Runtime::Store& widgets() override { return *store_; }
    void renew() override;
    void shoot(const String& file) override;

private:
    void click(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void activate(Widgets::WidgetId widget) override;
    void type(Widgets::WidgetId widget, Integer code) override;
    void pick(Widgets::WidgetId combo, const String& text) override;
    void slide(Widgets::WidgetId slider, Integer position) override;
    void hold(Widgets::WidgetId slider) override;
    void drop(Widgets::WidgetId slider) override;
    void selectTab(Integer tab) override;
    void wait(std::chrono::milliseconds time) override;

    std::optional<String> ask(const Widgets::Question& question) override;

    PanelListener* listener_ = nullptr;
    std::shared_ptr<Runtime::Store> store_;
    std::unique_ptr<MarvaneAssistant> panel_;
    Connection events_;
};

}  // namespace Orvo::Console
