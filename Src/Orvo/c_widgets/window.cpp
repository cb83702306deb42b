#include <array>
#include <memory>

#include <QApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include "Orvo/c/handle.h"
#include "Orvo/orvo_widgets.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::C {
namespace {

// For a host without one. It is never deleted: no window could outlive it.
class OwnApplication {
public:
    static void makeIfNone() {
        if (QCoreApplication::instance() == nullptr) new OwnApplication;
    }

private:
    OwnApplication() : application_(count_, arguments_.data()) {}

    int count_ = 1;
    std::array<char, sizeof "orvo"> name_{"orvo"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
    QApplication application_;
};

struct WindowPanel final : orvo_panel {
    explicit WindowPanel(const Platform& platform) : widget(platform) {}

    MarvaneAssistant& panel() override { return widget.panel(); }
    Runtime::Store& store() override { return widget.store(); }

    Window::PanelWidget widget;
};

std::unique_ptr<WindowPanel> makeWindow(const orvo_options* options) {
    OwnApplication::makeIfNone();
    return std::make_unique<WindowPanel>(platformFor(options));
}

template <class Act>
std::int32_t onWindow(orvo_panel* panel, orvo_error* error, const Act& act) {
    return guarded(panel, error, [&](orvo_panel& held) {
        auto* const window = dynamic_cast<WindowPanel*>(&held);
        if (window == nullptr) throw noPanel();
        act(window->widget);
    });
}

}  // namespace
}  // namespace Orvo::C

// Not in a header: NOLINTNEXTLINE(google-global-names-in-headers)
using namespace Orvo::C;

int32_t orvo_window_create(const orvo_options* options, orvo_panel** panel, orvo_error* error) {
    return guarded(error, [&] {
        orvo_panel*& place = *required(panel);
        place = makeWindow(options).release();
    });
}

int32_t orvo_window_set_title(orvo_panel* panel, const char* title, orvo_error* error) {
    return onWindow(panel, error, [&](QWidget& window) {
        window.setWindowTitle(QString::fromUtf8(required(title)));
    });
}

int32_t orvo_window_set_zoom(orvo_panel* panel, double zoom, orvo_error* error) {
    return onWindow(panel, error, [&](Orvo::Window::PanelWidget& window) {
        window.setZoom(zoom);
        window.resize(window.sizeHint());
    });
}

int32_t orvo_window_show(orvo_panel* panel, orvo_error* error) {
    return onWindow(panel, error, [](QWidget& window) { window.show(); });
}

int32_t orvo_window_is_shown(orvo_panel* panel) {
    bool isShown = false;
    onWindow(panel, nullptr, [&](const QWidget& window) { isShown = window.isVisible(); });
    return isShown ? 1 : 0;
}

void orvo_process_events(int32_t milliseconds) {
    if (QCoreApplication::instance() == nullptr) return;
    // The timer ends the wait for a first event.
    QTimer::singleShot(milliseconds, [] {});
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void orvo_run() {
    if (QCoreApplication::instance() != nullptr) QCoreApplication::exec();
}
