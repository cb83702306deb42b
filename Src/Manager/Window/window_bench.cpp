#include "Manager/Window/window_bench.h"

#include "Manager/Window/file_saver.h"
#include "Manager/Window/pictures.h"
#include "Manager/Window/pointed_input.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Manager {
namespace {

constexpr Integer kReturn{'\r'};
constexpr Integer kSpace{' '};

}  // namespace

WindowBench::WindowBench(double zoom)
    : own_(std::make_unique<Window::PanelWidget>(Platform{}, nullptr, Window::Clock::byHand)),
      window_(*own_) {
    window_.setZoom(zoom);
    takeWindow();
    takeErrors();
    window_.show();
}

void WindowBench::renew() {
    window_.renew();
    takeWindow();
    takeErrors();
}

void WindowBench::takeWindow() { take(window_.panel(), window_.store().shared_from_this()); }

void WindowBench::shoot(const String& file) {
    const QString error = write(Window::toQt(file), toPng(pictureOf(window_)));
    if (!error.isEmpty()) throw Error(75, "Path/File access error");
}

// The controls learn only with the next frame what they may do.
template <class Control>
Control* WindowBench::controlOf(Widgets::WidgetId widget) {
    auto* control = qobject_cast<Control*>(window_.control(widget));
    if (control != nullptr) window_.flush();
    return control;
}

void WindowBench::click(Widgets::WidgetId widget, Runtime::MouseButton button) {
    auto* control = controlOf<QAbstractButton>(widget);
    if (control == nullptr) return PanelBench::click(widget, button);
    clickOn(*control, button, ReleasedWhere::onWidget);
}

void WindowBench::dragOff(Widgets::WidgetId widget, Runtime::MouseButton button) {
    auto* control = controlOf<QAbstractButton>(widget);
    if (control == nullptr) return PanelBench::dragOff(widget, button);
    clickOn(*control, button, ReleasedWhere::elsewhere);
}

void WindowBench::activate(Widgets::WidgetId widget) {
    auto* control = controlOf<QAbstractButton>(widget);
    if (control == nullptr) return PanelBench::activate(widget);
    typeInto(*control, kSpace);
}

// A key that doesn't work a button is of no use to it, and a mere code is no key.
void WindowBench::type(Widgets::WidgetId widget, Integer code) {
    const bool isKey = code == kReturn || code == kSpace;
    const auto kind = Layout::describe(widget).style.kind;
    const bool isText = kind == Layout::Kind::list || kind == Layout::Kind::combo;
    auto* control = isText ? controlOf<QWidget>(widget) : controlOf<QAbstractButton>(widget);
    if (control == nullptr || code == 0 || !(isKey || isText)) {
        return PanelBench::type(widget, code);
    }
    typeInto(*control, code);
}

}  // namespace Orvo::Manager
