#pragma once

#include <memory>
#include <optional>

#include "Orvo/core/marvane_assistant.h"
#include "Script/bench.h"

namespace Orvo::Script {

/// What every bench with a store behind its panel has in common: whoever listens hears of the
/// present panel, and what the person does is the store's input.
class PanelBench : public Bench, protected Person, private Runtime::Prompter {
public:
    void tell(PanelListener* listener) override { listener_ = listener; }
    InvokeResult invoke(Long dispatchId, MemberKind kind,
                        std::span<const Value> arguments) override;
    Person& person() override { return *this; }
    Runtime::Store& widgets() override { return *store_; }

protected:
    /// From now on the bench's panel is this one, over these widgets. It must live until the bench
    /// takes another or ends.
    void take(MarvaneAssistant& panel, std::shared_ptr<Runtime::Store> store);
    /// From now on the bench hears of the panel's errors that nobody waits for.
    void takeErrors();

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

private:
    std::optional<String> ask(const Widgets::Question& question) override;

    PanelListener* listener_ = nullptr;
    MarvaneAssistant* panel_ = nullptr;
    std::shared_ptr<Runtime::Store> store_;
    Connection events_;
};

}  // namespace Orvo::Script
