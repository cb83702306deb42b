#pragma once

#include <memory>

#include <QAbstractButton>

#include "Orvo/window/panel_widget.h"
#include "Script/command.h"
#include "Script/panel_bench.h"

namespace Orvo::Manager {

/// A panel in a window. The person's mouse and keyboard go to the window's controls; the clock is
/// the person's waiting alone.
class WindowBench : public Script::PanelBench {
public:
    /// What scripts on a window may say.
    static constexpr Script::Grammar kGrammar{.speaker = Script::Grammar::Speaker::anyone,
                                              .place = Script::Place::inWindow};

    /// In a window of its own. The zoom as PanelWidget has it.
    explicit WindowBench(double zoom = 1);

    void renew() override;
    /// Error 75 when the file can't be written.
    void shoot(const String& file) override;

    /// False once the window has been closed.
    [[nodiscard]] bool isShown() const { return window_.isVisible(); }

protected:
    /// In a window that others have made. It is not taken yet, and its errors stay with them.
    explicit WindowBench(Window::PanelWidget& window) : window_(window) {}
    void takeWindow();
    [[nodiscard]] Window::PanelWidget& window() const { return window_; }

private:
    void click(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) override;
    void activate(Widgets::WidgetId widget) override;
    void type(Widgets::WidgetId widget, Integer code) override;

    /// Null for kinds that have no control of the toolkit's.
    template <class Control>
    [[nodiscard]] Control* controlOf(Widgets::WidgetId widget);

    const std::unique_ptr<Window::PanelWidget> own_{};
    Window::PanelWidget& window_;
};

}  // namespace Orvo::Manager
