#include <cstdio>
#include <stdexcept>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include "Manager/Window/demonstration.h"
#include "Manager/Window/files.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/options.h"
#include "Manager/Window/platform.h"
#include "Manager/Window/run_script.h"
#include "Manager/Window/shortcuts.h"
#include "Orvo/version.h"
#include "Orvo/window/emblem.h"
#include "Script/program.h"

namespace Orvo::Manager {
namespace {

int end(const Ending& ending) {
    std::FILE* stream = ending.status == 0 ? stdout : stderr;
    const bool isSaid = std::fputs(qPrintable(ending.text + '\n'), stream) >= 0;
    return isSaid && std::fflush(stream) == 0 ? ending.status : kWrongUsage;
}

std::string logFile() {
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    directory.mkpath(".");
    return nativeName(directory.filePath("messages.txt"));
}

int generate(const Options& options) {
    ManagerWindow window;
    window.showScopes(true);  // which have keys, too
    Script::Manual manual = manualOfOptions();
    for (const Shortcut& key : shortcutsOf(window)) {
        if (key.keys.isEmpty()) continue;
        manual.keys.push_back(
            {key.group.toStdString(), key.what.toStdString(), key.keys.toStdString()});
    }
    const std::string text = manualAs(options.form.toStdString(), manual);
    if (text.empty()) {
        return complain(
            std::runtime_error(std::string("--generate takes ") + Script::kManualForms));
    }
    return end({0, QString::fromStdString(text).chopped(1)});
}

int showWindow(Options options) {
    try {
        QSettings settings;
        options.session.log = logFile();
        ManagerWindow window(options, &settings);
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
    Orvo::Script::surviveFailedWrites();
    choosePlatform();
    const QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    QApplication::setOrganizationName("Marvane");
    QApplication::setApplicationName("marvane-manager");
    QApplication::setApplicationDisplayName("Marvane Manager");
    QApplication::setApplicationVersion(ORVO_VERSION);
    QApplication::setDesktopFileName(ORVO_MANAGER_ID);
    QApplication::setWindowIcon(Orvo::Window::emblem());

    const auto parsed = parseCommandLine(QApplication::arguments());
    if (const auto* ending = std::get_if<Ending>(&parsed)) return end(*ending);
    const auto& options = std::get<Options>(parsed);
    if (!options.form.isEmpty()) return generate(options);
    if (!options.script.isEmpty()) return runScript(options);
    return hasDisplay() || options.link ? showWindow(options) : demonstrate(options);
}
