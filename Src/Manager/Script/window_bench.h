#pragma once

#include <memory>

#include <QAbstractButton>

#include "Console/panel_bench.h"
#include "Runtime/Qt/panel_widget.h"

namespace Orvo::Manager {

/// A panel in a window of its own. The person's mouse and keyboard go to the window's controls; the
/// clock is the person's waiting alone.
class WindowBench final : public Console::PanelBench {
public:
    /// The zoom as PanelWidget has it.
    explicit WindowBench(double zoom = 1);

    /// The new window stands where the old one stood.
    void renew() override;
    /// Error 75 when the file can't be written.
    void shoot(const String& file) override;

    /// False once the window has been closed.
    [[nodiscard]] bool isShown() const { return window_->isVisible(); }

private:
    void click(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void activate(Widgets::WidgetId widget) override;
    void type(Widgets::WidgetId widget, Integer code) override;

    /// Null for kinds that have no control of the toolkit's.
    template <class Control>
    [[nodiscard]] Control* controlOf(Widgets::WidgetId widget);

    double zoom_;
    std::unique_ptr<Window::PanelWidget> window_;
};

}  // namespace Orvo::Manager
