#include "processes.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <QCoreApplication>
#include <QProcess>

#include "Manager/Window/manager_window.h"
#include "bench.h"
#include "measure.h"
#include "peers_widgets.h"

namespace Orvo::Benchmarks {
namespace {

std::unique_ptr<QWidget> makeManager() {
    auto window = std::make_unique<Manager::ManagerWindow>();
    window->session().connectSimulator();
    window->open();
    return window;
}

struct Start {
    std::string_view name;
    std::unique_ptr<QWidget> (*make)();
};

constexpr auto kStarts = std::to_array<Start>({
    {"panel", [] { return std::unique_ptr<QWidget>(new Window::PanelWidget); }},
    {"widgets", [] { return std::unique_ptr<QWidget>(new WidgetPanel(Layout::kCommonTab)); }},
    {"manager", makeManager},
    {"empty", [] { return std::make_unique<QWidget>(); }},
});

// The figures that such a process ends with.
double figureOf(const std::string& window, Since since) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kFirstPicture, window.c_str()});
    if (!process.waitForFinished()) throw std::runtime_error("no first picture of " + window);
    const QList<QByteArray> figures = process.readAllStandardOutput().split(' ');
    return figures.at(since == Since::start ? 0 : 1).toDouble();
}

}  // namespace

Contender firstPicture(const std::string& window, Since since) {
    return [=]() -> Round { return [=] { return figureOf(window, since); }; };
}

int showFirstPicture(std::string_view name) {
    const double before = cpuTime();
    for (const Start& start : kStarts) {
        if (start.name != name) continue;
        const auto shown = start.make();
        shown->show();
        paint(*shown);
        std::printf("%.0f %.0f", cpuTime(), cpuTime() - before);
        std::fflush(stdout);
        std::_Exit(0);
    }
    return 2;
}

}  // namespace Orvo::Benchmarks
