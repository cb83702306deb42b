#include "Manager/Window/run_script.h"

#include <cstdio>
#include <exception>

#include <poll.h>

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include "Manager/Window/window_bench.h"
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

void live(const WindowBench& bench, int descriptor) {
    QCoreApplication::processEvents();
    if (isReadable(descriptor)) return;
    const QSocketNotifier input(descriptor, QSocketNotifier::Read);
    QTimer look;
    look.start(kLook);
    while (!isReadable(descriptor)) {
        if (!bench.isShown()) throw WindowClosed{};
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

int runScript(const Options& options) {
    try {
        WindowBench bench(options.zoom / 100.0);
        const auto atComplaint =
            options.keepsGoing ? Script::AtComplaint::goOn : Script::AtComplaint::stop;
        return Script::runScript(bench, WindowBench::kGrammar,
                                 QFile::encodeName(options.script).toStdString(), atComplaint,
                                 [&bench](int descriptor) { live(bench, descriptor); });
    } catch (const WindowClosed&) {
        return Script::done;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "marvane-manager: %s\n", failure.what());
        return Script::cannotRun;
    }
}

}  // namespace Orvo::Manager
