#include <QListWidget>

#include "bench.h"
#include "measure.h"
#include "peers_widgets.h"

// What a panel that changes costs to repaint.
namespace Orvo::Benchmarks {
namespace {

using Window::PanelWidget;

// Everything an amplifier reports, other than the time before.
void pushEverything(MarvaneAssistant& panel, int turn) {
    const bool isOn = turn % 2 == 0;
    const auto volts = Integer(111 * (turn % 10));
    for (const Integer channel : {Integer{0}, Integer{1}, Integer{2}, Integer{3}, Integer{4}}) {
        panel.Protection(channel, isOn);
        panel.Signal(channel, isOn);
        panel.Mute(channel, isOn);
        panel.Volume(channel, Integer((isOn ? 1 : -1) * (turn % 30)));
    }
    for (const Integer pair : {Integer{1}, Integer{2}}) {
        panel.Clock(pair, isOn);
        panel.Ready(pair, isOn);
        panel.Temperature(pair, volts);
        panel.VPPower(pair, volts);
        panel.VPAux(pair, volts);
        panel.VNPower(pair, volts);
        panel.VNAux(pair, volts);
    }
    panel.Connected(isOn);
    panel.MainPresence(isOn);
    panel.PowerOn(isOn);
}

template <class Change>
Contender panelPainting(Integer tab, Change change) {
    return repeated([tab] { return makePanel(tab); },
                    [change](PanelWidget& panel, int turn) {
                        change(panel.panel(), turn);
                        bringToPicture(panel);
                    });
}

template <class Make, class Change>
Contender peerPainting(Make make, Change change) {
    const auto makeShown = [make] {
        auto window = make();
        window->show();
        paint(*window);
        return window;
    };
    return repeated(makeShown, [change](auto& window, int turn) {
        change(window, turn);
        paint(window);
    });
}

template <class Panel>
Contender peerPushed() {
    return peerPainting([] { return std::make_unique<Panel>(); },
                        [](Panel& panel, int turn) { panel.pushEverything(turn); });
}

Contender keptPicture(QRect place) {
    return peerPainting([place] { return std::make_unique<KeptChildWindow>(place); },
                        [](KeptChildWindow& window, int) { window.change(); });
}

Contender copyOfWindow() {
    const auto make = [] {
        return std::make_unique<CopiedWindow>(*makePanel(Layout::kFirstPairTab));
    };
    return repeated(make, [](CopiedWindow& window, int) { window.copy(); });
}

QRect railPlace() {
    const auto& places = Layout::pair(1).positivePower.places;
    return placeOf(places.front()).united(placeOf(places.back()));
}

Row everything() {
    const auto makeWidgets = [] { return makeWidgetPanel(Layout::kFirstPairTab); };
    return {
        .measure = "everything pushed, to picture",
        .ours = panelPainting(Layout::kFirstPairTab, pushEverything),
        .rivals = {{Role::peer,
                    "a QWidget a row, drawn simply",
                    peerPainting(makeWidgets,
                                 [](WidgetPanel& panel, int turn) { panel.pushEverything(turn); }),
                    {.must = timesLess(2), .aim = timesLess(2.5), .gate = times(1)}},
                   {Role::peer, "7 QLCDNumber and 14 coloured QLabel", peerPushed<ReadoutPanel>()},
                   {Role::floor, "a copy of the window", copyOfWindow(), {.aim = times(3)}}}};
}

Row rail() {
    return {.measure = "one rail's three digits, to picture",
            .ours = panelPainting(Layout::kFirstPairTab,
                                  [](MarvaneAssistant& panel, int turn) {
                                      panel.VPPower(1, Integer(111 * (turn % 10)));
                                  }),
            .rivals = {{Role::floor,
                        "a child widget with a kept picture",
                        keptPicture(railPlace()),
                        {.must = times(5)}}}};
}

Row lamp() {
    return {.measure = "one lamp, to picture",
            .ours = panelPainting(
                Layout::kFirstPairTab,
                [](MarvaneAssistant& panel, int turn) { panel.Signal(1, turn % 2 == 0); }),
            .rivals = {{Role::floor,
                        "a child widget with a kept picture",
                        keptPicture(placeOf(Layout::channel(1).signalLamp)),
                        {.must = times(3)}}}};
}

// A line of the log, on top of so many.
Contender logLine(int lines) {
    static const String line = u"12:00:00  Power bus +: 118 V";
    const auto make = [lines] {
        auto panel = makePanel(Layout::kCommonTab);
        for (int i = 0; i < lines; ++i) panel->panel().AggiugiTesto(line);
        bringToPicture(*panel);
        return panel;
    };
    return repeated(make, [](PanelWidget& panel, int) {
        panel.panel().AggiugiTesto(line);
        bringToPicture(panel);
    });
}

Contender listLine(int lines) {
    static const QString line = "12:00:00  Power bus +: 118 V";
    const auto make = [lines] {
        auto list = std::make_unique<QListWidget>();
        list->resize(placeOf(Layout::kCommon.log).size());
        list->setUniformItemSizes(true);
        for (int i = 0; i < lines; ++i) list->addItem(line);
        return list;
    };
    return peerPainting(make, [](QListWidget& list, int) {
        list.addItem(line);
        list.scrollToBottom();
    });
}

Row log() {
    constexpr int kMany = 10'000;
    constexpr double kMicroseconds = 1e3;
    return {.measure = "a log line to picture, after 10,000",
            .ours = logLine(kMany),
            .rivals = {{Role::peer, "QListWidget", listLine(kMany), {.must = timesLess(10)}},
                       limit("40 us", 40 * kMicroseconds)}};
}

Row longLog() {
    return {.measure = "a log line to picture, after 1,000,000",
            .ours = logLine(1'000'000),
            .rivals = {{Role::floor, "after 100", logLine(100), {.must = times(1.2)}}}};
}

}  // namespace

std::vector<Row> paintRows() { return {everything(), rail(), lamp(), log(), longLog()}; }

}  // namespace Orvo::Benchmarks
