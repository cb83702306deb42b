#include "Manager/Window/run_script.h"

#include <exception>

#include <poll.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include "Manager/Window/files.h"
#include "Manager/Window/window_panel.h"
#include "Manager/Window/zoom_area.h"
#include "Script/script_runner.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

// Closing the window wakes nobody who waits for input.
constexpr auto kLook = 200ms;

/// What is thrown when nobody is left to wait for.
struct WindowClosed {};

// At its end, too.
bool isReadable(int descriptor) {
    pollfd file{descriptor, POLLIN, 0};
    return ::poll(&file, 1, 0) != 0;
}

void live(const QWidget& window, int descriptor) {
    QCoreApplication::processEvents();
    if (isReadable(descriptor)) return;
    const QSocketNotifier input(descriptor, QSocketNotifier::Read);
    QTimer look;
    look.start(kLook);
    while (!isReadable(descriptor)) {
        if (!window.isVisible()) throw WindowClosed{};
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

int runScript(const Options& options) {
    try {
        Window::PanelWidget window(Platform{}, nullptr, Window::Clock::byHand);
        window.setZoom(options.zoom.value_or(kPlainZoom) / 100.0);
        WindowPanel panel(window, options.session.existing);
        window.show();
        const auto atComplaint =
            options.keepsGoing ? Script::AtComplaint::goOn : Script::AtComplaint::stop;
        return Script::runScript(panel, panel, {.place = Script::Place::inWindow},
                                 nativeName(options.script), atComplaint,
                                 [&window](int descriptor) { live(window, descriptor); });
    } catch (const WindowClosed&) {
        return Script::done;
    } catch (const std::exception& failure) {
        return complain(failure);
    }
}

}  // namespace Orvo::Manager
