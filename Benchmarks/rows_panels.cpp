#include <array>

#include "bench.h"
#include "measure.h"
#include "peers_widgets.h"
#include "processes.h"

// What it takes to have a panel, and many of them.
namespace Orvo::Benchmarks {
namespace {

constexpr int kPanels = 99;
constexpr double kMegabyte = 1e6;

std::unique_ptr<Window::PanelWidget> makeShownPanel() { return makePanel(Layout::kCommonTab); }

std::unique_ptr<WidgetPanel> makeShownWidgets() {
    auto panel = makeWidgetPanel(Layout::kCommonTab);
    panel->show();
    paint(*panel);
    return panel;
}

// The time for each of many, which stay until the last one is there, or are released at once.
enum class Stay { together, alone };

template <class Make>
Contender timeOfEach(Make make, Stay stay) {
    return [=]() -> Round {
        return [=] {
            std::vector<decltype(make())> panels;
            const double before = cpuTime();
            for (int i = 0; i < kPanels; ++i) {
                panels.push_back(make());
                if (stay == Stay::alone) panels.clear();
            }
            return (cpuTime() - before) / kPanels;
        };
    };
}

// What each takes of the heap, when the first one has brought what they share.
template <class Make>
Contender memoryOfEach(Make make) {
    return [make]() -> Round {
        return [make] {
            const auto first = make();
            const double before = heapInUse();
            std::vector<decltype(make())> panels;
            while (panels.size() < kPanels) panels.push_back(make());
            return (heapInUse() - before) / kPanels;
        };
    };
}

Row withoutWindow() {
    return {.measure = "a panel without a window, made and released",
            .ours = repeated([] { const Bench bench; }),
            .rivals = {{Role::peer,
                        "a QWidget a row, not shown",
                        repeated([] { makeWidgetPanel(Layout::kCommonTab); }),
                        {.must = timesLess(120)}},
                       {Role::floor,
                        "a plain object a row",
                        repeated([] { makePlainObjects(); }),
                        {.must = times(0.8), .gate = times(1.5)}}}};
}

Row warm() {
    return {.measure = "a window, made and painted first, in a warm process",
            .ours = repeated([] { makeShownPanel(); }),
            .rivals = {{Role::peer,
                        "a QWidget a row",
                        repeated([] { makeShownWidgets(); }),
                        {.must = timesLess(1.3), .aim = timesLess(1.5)}}}};
}

Row cold() {
    return {
        .measure = "a window, made and painted first, in a fresh process",
        .ours = firstPicture("panel", Since::application),
        .rivals = {{Role::peer,
                    "a QWidget a row",
                    firstPicture("widgets", Since::application),
                    {.must = times(1 / 0.7), .aim = times(1)}},
                   {Role::floor, "an empty window", firstPicture("empty", Since::application)}}};
}

Row manyInTime() {
    return {
        .measure = "99 panels with windows, each",
        .ours = timeOfEach(makeShownPanel, Stay::together),
        .rivals = {{Role::floor,
                    "each alone",
                    timeOfEach(makeShownPanel, Stay::alone),
                    {.must = times(1.3)}},
                   {Role::peer, "a QWidget a row", timeOfEach(makeShownWidgets, Stay::together)}}};
}

Row manyInMemory() {
    return {.measure = "99 panels with windows, heap of each",
            .unit = Unit::bytes,
            .ours = memoryOfEach(makeShownPanel),
            .rivals = {limit("1.6 MB", 1.6 * kMegabyte),
                       {Role::peer, "a QWidget a row", memoryOfEach(makeShownWidgets)}}};
}

}  // namespace

std::vector<Row> panelRows() {
    return {withoutWindow(), warm(), cold(), manyInTime(), manyInMemory()};
}

}  // namespace Orvo::Benchmarks
