#pragma once

#include <chrono>
#include <optional>
#include <span>

#include "Orvo/core/event_table.h"
#include "Orvo/core/late_binding.h"
#include "Orvo/store/store.h"
#include "Orvo/widgets/widget_tree.h"

// What the panel script needs of a program that has a panel: one with a window or one without.
namespace Orvo::Script {

/// Whoever sits in front of the panel. Widgets that are hidden or disabled ignore it all.
class Person {
public:
    virtual ~Person() = default;
    virtual void click(Widgets::WidgetId widget, Runtime::MouseButton button) = 0;
    /// Pressed on the widget, dragged off it and released.
    virtual void dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) = 0;
    virtual void activate(Widgets::WidgetId widget) = 0;
    virtual void type(Widgets::WidgetId widget, Integer code) = 0;
    virtual void pick(Widgets::WidgetId combo, const String& text) = 0;
    virtual void slide(Widgets::WidgetId slider, Integer position) = 0;
    virtual void hold(Widgets::WidgetId slider) = 0;
    virtual void drop(Widgets::WidgetId slider) = 0;
    virtual void selectTab(Integer tab) = 0;
    /// Does nothing for so long; timers that come due tick.
    virtual void wait(std::chrono::milliseconds time) = 0;
};

/// Is told what becomes of the panel.
class PanelListener {
public:
    virtual ~PanelListener() = default;
    virtual void raised(const Event& event, std::span<const Value> arguments) = 0;
    /// An error ended a handler that nobody waits for.
    virtual void failed(const Error& error) = 0;
    /// The answer to a prompt; none cancels it.
    virtual std::optional<String> asked(const Widgets::Question& question) = 0;
};

/// A panel with its widgets and its person.
class Bench {
public:
    virtual ~Bench() = default;

    /// Who hears of this panel and of every later one; nobody when it is null.
    virtual void tell(PanelListener* listener) = 0;

    virtual InvokeResult invoke(Long dispatchId, MemberKind kind,
                                std::span<const Value> arguments) = 0;
    virtual Person& person() = 0;
    /// The widgets of the present panel.
    virtual Runtime::Store& widgets() = 0;

    /// Releases the panel and creates a fresh one with fresh widgets. It may be called while the
    /// old panel handles a notification or raises an event.
    virtual void renew() = 0;

    /// Writes a PNG picture of the panel. Throws Error when that fails. Only a bench with a window
    /// is ever asked.
    virtual void shoot(const String& file) = 0;
};

}  // namespace Orvo::Script
