#include <csignal>
#include <cstdio>
#include <stdexcept>

#include <QApplication>

#include "Manager/Window/demonstration.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/options.h"
#include "Manager/Window/platform.h"
#include "Manager/Window/run_script.h"
#include "Orvo/window/emblem.h"

namespace Orvo::Manager {
namespace {

int end(const Ending& ending) {
    std::FILE* stream = ending.status == 0 ? stdout : stderr;
    std::fputs(qPrintable(ending.text + '\n'), stream);
    return ending.status;
}

int showWindow(const Options& options) {
    try {
        ManagerWindow window(options);
        options.link ? window.connectLink(*options.link) : window.session().connectSimulator();
        window.open();
        const int status = QApplication::exec();
        if (const auto reason = window.session().endRecording()) throw std::runtime_error(*reason);
        return status;
    } catch (const std::runtime_error& failure) {
        return complain(failure);
    }
}

}  // namespace
}  // namespace Orvo::Manager

int main(int argc, char** argv) {
    using namespace Orvo::Manager;
    // What can't be written is told; it doesn't end the program unsaid.
    for (const int number : {SIGPIPE, SIGXFSZ}) std::signal(number, SIG_IGN);
    choosePlatform();
    const QApplication application(argc, argv);
    QApplication::setApplicationName("marvane-manager");
    QApplication::setApplicationDisplayName("Marvane Manager");
    QApplication::setApplicationVersion(ORVO_VERSION);
    QApplication::setDesktopFileName("marvane-manager");
    QApplication::setWindowIcon(Orvo::Window::emblem());

    const auto parsed = parseCommandLine(QApplication::arguments());
    if (const auto* ending = std::get_if<Ending>(&parsed)) return end(*ending);
    const auto& options = std::get<Options>(parsed);
    if (!options.script.isEmpty()) return runScript(options);
    return hasDisplay() || options.link ? showWindow(options) : demonstrate(options);
}
