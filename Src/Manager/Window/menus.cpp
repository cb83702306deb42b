#include "Manager/Window/menus.h"

#include <QActionGroup>
#include <QMenuBar>

#include "Manager/Window/manager_window.h"
#include "Orvo/layout/common_tab.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Simulator/fault.h"

// The keys keep clear of the panel's own: Alt with a letter or a digit, Ctrl+Tab, and in its lists
// what they type there, Ctrl+R above all.
namespace Orvo::Manager {

Menus::Menus(ManagerWindow& window)
    : QObject(&window), window_(window), session_(window.session()) {
    addFileMenu();
    addConnectMenu();
    addAmplifierMenu();
    addViewMenu();
    addHelpMenu();
}

QMenu* Menus::addMenu(const QString& title) { return window_.menuBar()->addMenu(title); }

QAction* Menus::add(QMenu* menu, const QString& text, const QString& keys, const Effect& effect) {
    auto* action = menu->addAction(text);
    action->setShortcut(QKeySequence(keys));
    // The menu bar's own actions sleep while it is hidden.
    window_.addAction(action);
    connect(action, &QAction::triggered, this, [this, effect] {
        effect();
        window_.refresh();
    });
    return action;
}

QAction* Menus::addSwitch(QMenu* menu, const QString& text, const QString& keys,
                          const Switch& effect, const Condition& isOn) {
    auto* action = add(menu, text, keys, [] {});
    action->setCheckable(true);
    action->disconnect(this);
    connect(action, &QAction::triggered, this, [this, effect](bool isTicked) {
        effect(isTicked);
        window_.refresh();
    });
    refreshes_.emplace_back([action, isOn] { action->setChecked(isOn()); });
    return action;
}

void Menus::enableWhile(QAction* action, const Condition& condition) {
    refreshes_.emplace_back([action, condition] { action->setEnabled(condition()); });
}

void Menus::addFileMenu() {
    auto* menu = addMenu("&File");
    add(menu, "Save &picture of the panel…", "Ctrl+S", [this] { window_.savePicture(); });
    addChannels(menu->addMenu("Save picture of a &scope"), "Ctrl+G",
                [this](Integer channel) { window_.saveScopePicture(channel); });
    addChannels(menu->addMenu("Save samples of a &trace"), "Ctrl+T",
                [this](Integer channel) { window_.saveTrace(channel); });
    menu->addSeparator();
    add(menu, "&Copy message log", "Ctrl+L", [this] { window_.copyMessageLog(); });
    add(menu, "Save message &log…", "Ctrl+Shift+L", [this] { window_.saveMessageLog(); });
    menu->addSeparator();
    addSessions(menu);
    menu->addSeparator();
    add(menu, "&Quit", "Ctrl+Q", [this] { window_.close(); })->setMenuRole(QAction::QuitRole);
}

void Menus::addSessions(QMenu* menu) {
    const auto record = [this](bool isOn) {
        isOn ? window_.askForRecording() : session_.stopRecording();
    };
    const auto replay = [this](bool isOn) {
        isOn ? window_.askForReplay() : session_.stopReplay();
    };
    const auto isReplaying = [this] { return session_.isReplaying(); };
    addSwitch(menu, "&Record a session…", "F3", record, [this] { return session_.isRecording(); });
    addSwitch(menu, "R&eplay a session…", "F5", replay, isReplaying);
    enableWhile(add(menu, "St&op the replay", "Esc", [this] { session_.stopReplay(); }),
                isReplaying);
}

void Menus::addChannels(QMenu* menu, const QString& firstKey,
                        const std::function<void(Integer)>& save) {
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        const QString number = QString::number(channel);
        add(menu, "Channel &" + number + "…", firstKey + ", " + number,
            [save, channel] { save(channel); });
    }
}

void Menus::addConnectMenu() {
    auto* menu = addMenu("&Connect");
    const auto isConnected = [this] { return session_.station().isConnected(); };
    const auto isLink = [this, isConnected] {
        return isConnected() && !isSimulated() && !session_.isReplaying();
    };
    auto* group = new QActionGroup(this);
    group->addAction(addSwitch(
        menu, "&Simulated amplifier", "F6", [this](bool) { session_.connectSimulator(); },
        [this] { return isSimulated(); }));
    group->addAction(addSwitch(
        menu, "&Link…", "F7", [this](bool) { window_.askForLink(); }, isLink));
    group->addAction(addSwitch(
        menu, "&Nothing", "F8", [this](bool) { session_.connectNothing(); },
        [isConnected] { return !isConnected(); }));
}

void Menus::addAmplifierMenu() {
    auto* menu = addMenu("&Amplifier");
    auto* quickTest = add(menu, "Run the &quick test", "F9", [this] {
        if (auto* simulator = session_.simulator()) simulator->runQuickTest();
    });
    enableWhile(quickTest, [this] { return isSimulated(); });
    addFaults(menu->addMenu("&Faults of the simulator"));
    menu->addSeparator();
    addSwitch(
        menu, "&Read-only mode", "F2", [this](bool isOn) { session_.setReadOnly(isOn); },
        [this] { return session_.isReadOnly(); });
}

void Menus::addFaults(QMenu* menu) {
    int number = 1;
    for (const Simulator::FaultRow& row : Simulator::kFaults) {
        const QString text =
            QString::fromUtf8(row.description.data(), qsizetype(row.description.size()));
        auto* action = addSwitch(
            menu, QString("&%1 ").arg(number) + text, QString("Ctrl+F, %1").arg(number),
            [this, fault = row.fault](bool isOn) {
                if (auto* simulator = session_.simulator()) simulator->set(fault, isOn);
            },
            [this, fault = row.fault] {
                return isSimulated() && session_.simulator()->has(fault);
            });
        enableWhile(action, [this] { return isSimulated(); });
        ++number;
    }
}

void Menus::addViewMenu() {
    auto* menu = addMenu("&View");
    int tab = 1;
    for (const auto caption : Layout::kTabCaptions) {
        const QString text = QString::fromUtf16(caption.data(), qsizetype(caption.size()));
        auto* action = add(menu, QString("&%1 ").arg(tab) + text, QString("Ctrl+%1").arg(tab),
                           [this, tab] { window_.selectTab(tab); });
        enableWhile(action, [this, tab] {
            const auto& store = window_.panelWidget().store();
            return store.get<Runtime::StoredTabs>(Layout::kTabs.id).isTabEnabled(tab - 1);
        });
        ++tab;
    }
    menu->addSeparator();
    addZoom(menu);
    menu->addSeparator();
    addEvents(menu);
}

void Menus::addZoom(QMenu* menu) {
    add(menu, "Zoom &in", "Ctrl++", [this] {
        window_.zoomIn();
    })->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
    add(menu, "Zoom &out", "Ctrl+-", [this] { window_.zoomOut(); });
    add(menu, "Zoom &100 %", "Ctrl+0", [this] { window_.setZoom(kPlainZoom); });
    addSwitch(
        menu, "&Full screen", "F11", [this](bool isOn) { window_.setFullScreen(isOn); },
        [this] { return window_.isFullScreen(); });
}

void Menus::addEvents(QMenu* menu) {
    auto& station = session_.station();
    addSwitch(
        menu, "&Event view", "Ctrl+E", [this](bool isOn) { window_.showEvents(isOn); },
        [this] { return window_.areEventsShown(); });
    auto* detail = addSwitch(
        menu, "Events with &readings", "Ctrl+Shift+E",
        [&station](bool isOn) {
            station.conversation().setDetail(isOn ? Detail::everything : Detail::changes);
        },
        [&station] { return station.conversation().detail() == Detail::everything; });
    auto* copy = add(menu, "&Copy events", "Ctrl+Shift+C", [this] { window_.copyEvents(); });
    auto* clear = add(menu, "C&lear events", "Ctrl+Shift+X", [&station] { station.log().clear(); });
    copy->setIconText("Copy");
    clear->setIconText("Clear");
    detail->setIconText("With readings");
    eventActions_ = {copy, clear, detail};
}

void Menus::addHelpMenu() {
    auto* menu = addMenu("&Help");
    add(menu, "&Keyboard shortcuts", "F1", [this] { window_.showShortcuts(); });
    add(menu, "&About Marvane Manager", "Shift+F1", [this] {
        window_.showAbout();
    })->setMenuRole(QAction::AboutRole);
}

void Menus::refresh() {
    for (const auto& refresh : refreshes_) refresh();
}

bool Menus::isSimulated() const { return session_.simulator() != nullptr; }

}  // namespace Orvo::Manager
