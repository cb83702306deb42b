#include <stdexcept>

#include <QElapsedTimer>

#include "Manager/Window/manager_window.h"
#include "bench.h"
#include "measure.h"
#include "processes.h"

// marvane-manager as a person has it before them.
namespace Orvo::Benchmarks {
namespace {

bool hasAllTraces(Manager::ManagerWindow& window) {
    for (Integer channel = 1; channel <= Manager::kChannels; ++channel) {
        if (!window.session().station().traces().has(channel)) return false;
    }
    return true;
}

std::unique_ptr<Manager::ManagerWindow> makePlayingManager(int zoom) {
    auto window = std::make_unique<Manager::ManagerWindow>(
        Manager::Options{.zoom = zoom, .tab = Layout::kFirstPairTab + 1});
    window->session().connectSimulator();
    window->open();
    window->resize(2 * placeOf(Layout::kTabs).size());
    constexpr qint64 kPatience = 10'000;
    QElapsedTimer sinceStart;
    sinceStart.start();
    while (!hasAllTraces(*window)) {
        if (sinceStart.elapsed() > kPatience) throw std::runtime_error("the traces don't come");
        shareOfCore(100);
    }
    for (const Layout::Pair& pair : Layout::kPairs) {
        window->panelWidget().store().perform(Runtime::Deed::click(pair.startButton));
    }
    shareOfCore(1000);
    return window;
}

// From its start in each round, so that the amplifier plays the same.
Contender playing(int zoom) {
    return [zoom]() -> Round {
        return [zoom] {
            const auto window = makePlayingManager(zoom);
            return shareOfCore(3000);
        };
    };
}

Row liveTraces(int zoom, double share) {
    return {.measure = "marvane-manager with four live traces, " + std::to_string(zoom) + " %",
            .unit = Unit::percent,
            .ours = playing(zoom),
            .rivals = {limit(std::to_string(int(share)) + " % of a core", share)}};
}

Row start() {
    return {.measure = "marvane-manager from start to first picture",
            .ours = firstPicture("manager", Since::start),
            .rivals = {{Role::floor,
                        "a program with an empty window",
                        firstPicture("empty", Since::start),
                        {.must = times(2)}}}};
}

}  // namespace

std::vector<Row> programRows() { return {liveTraces(100, 3), liveTraces(200, 4), start()}; }

}  // namespace Orvo::Benchmarks
