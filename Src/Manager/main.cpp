#include <cstdio>

#include <QApplication>

#include "Manager/demonstration.h"
#include "Manager/manager_window.h"
#include "Manager/options.h"
#include "Manager/platform.h"

namespace Orvo::Manager {
namespace {

int end(const Ending& ending) {
    std::FILE* stream = ending.status == 0 ? stdout : stderr;
    std::fputs(qPrintable(ending.text + '\n'), stream);
    return ending.status;
}

int showWindow(const Options& options) {
    ManagerWindow window(options);
    window.connectSimulator();
    window.open();
    return QApplication::exec();
}

}  // namespace
}  // namespace Orvo::Manager

int main(int argc, char** argv) {
    using namespace Orvo::Manager;
    choosePlatform();
    const QApplication application(argc, argv);
    QApplication::setApplicationName("marvane-manager");
    QApplication::setApplicationDisplayName("Marvane Manager");
    QApplication::setApplicationVersion(ORVO_VERSION);

    const auto parsed = parseCommandLine(QApplication::arguments());
    if (const auto* ending = std::get_if<Ending>(&parsed)) return end(*ending);
    const auto& options = std::get<Options>(parsed);
    return hasDisplay() ? showWindow(options) : demonstrate(options);
}
