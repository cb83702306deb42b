#include "Manager/Window/menus.h"

#include <QMenuBar>

#include "Manager/Window/manager_window.h"
#include "Manager/Window/zoom.h"
#include "Orvo/layout/common_tab.h"
#include "Orvo/store/store.h"

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

QAction* Menus::add(QMenu* menu, const QString& text, const QString& keys, const Command& command) {
    auto* action = menu->addAction(text);
    action->setShortcut(QKeySequence(keys));
    // The menu bar's own actions sleep while it is hidden.
    window_.addAction(action);
    connect(action, &QAction::triggered, this, [this, command] {
        command();
        window_.refresh();
    });
    return action;
}

QAction* Menus::addSwitch(QMenu* menu, const QString& text, const QString& keys,
                          const Switch& command) {
    auto* action = add(menu, text, keys, [] {});
    action->setCheckable(true);
    action->disconnect(this);
    connect(action, &QAction::triggered, this, [this, command](bool isOn) {
        command(isOn);
        window_.refresh();
    });
    return action;
}

void Menus::addFileMenu() {
    auto* menu = addMenu("&File");
    add(menu, "Save &picture of the panel…", "Ctrl+S", [this] { window_.savePicture(); });
    addChannels(menu->addMenu("Save picture of a &scope"), "Ctrl+G",
                &ManagerWindow::saveScopePicture);
    addChannels(menu->addMenu("Save samples of a &trace"), "Ctrl+T", &ManagerWindow::saveTrace);
    menu->addSeparator();
    add(menu, "&Copy message log", "Ctrl+L", [this] { window_.copyMessageLog(); });
    add(menu, "Save message &log…", "Ctrl+Shift+L", [this] { window_.saveMessageLog(); });
    menu->addSeparator();
    addSessions(menu);
    menu->addSeparator();
    add(menu, "&Quit", "Ctrl+Q", [this] { window_.close(); })->setMenuRole(QAction::QuitRole);
}

void Menus::addSessions(QMenu* menu) {
    recording_ = addSwitch(menu, "&Record a session…", "F3", [this](bool isOn) {
        isOn ? window_.askForRecording() : session_.stopRecording();
    });
    replay_ = addSwitch(menu, "R&eplay a session…", "F5", [this](bool isOn) {
        isOn ? window_.askForReplay() : session_.stopReplay();
    });
    stopReplay_ = add(menu, "St&op the replay", "Esc", [this] { session_.stopReplay(); });
}

void Menus::addChannels(QMenu* menu, const QString& firstKey,
                        void (ManagerWindow::*save)(Integer)) {
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        const QString number = QString::number(channel);
        add(menu, "Channel &" + number + "…", firstKey + ", " + number,
            [this, save, channel] { (window_.*save)(channel); });
    }
}

void Menus::addConnectMenu() {
    auto* menu = addMenu("&Connect");
    simulator_ = addSwitch(menu, "&Simulated amplifier", "F6",
                           [this](bool) { session_.connectSimulator(); });
    link_ = addSwitch(menu, "&Link…", "F7", [this](bool) { window_.askForLink(); });
    nothing_ = addSwitch(menu, "&Nothing", "F8", [this](bool) { session_.connectNothing(); });
    for (QAction* action : {simulator_, link_, nothing_}) connection_.addAction(action);
}

void Menus::addAmplifierMenu() {
    auto* menu = addMenu("&Amplifier");
    quickTest_ = add(menu, "Run the &quick test", "F9", [this] {
        if (auto* simulator = session_.simulator()) simulator->runQuickTest();
    });
    faults_ = menu->addMenu("&Faults of the simulator");
    addFaults(faults_);
    menu->addSeparator();
    readOnly_ =
        addSwitch(menu, "&Read-only mode", "F2", [this](bool isOn) { session_.setReadOnly(isOn); });
}

void Menus::addFaults(QMenu* menu) {
    int number = 1;
    for (const Simulator::FaultRow& row : Simulator::kFaults) {
        const QString text =
            QString::fromUtf8(row.description.data(), qsizetype(row.description.size()));
        addSwitch(menu, QString("&%1 ").arg(number) + text, QString("Ctrl+F, %1").arg(number),
                  [this, fault = row.fault](bool isOn) {
                      if (auto* simulator = session_.simulator()) simulator->set(fault, isOn);
                  });
        ++number;
    }
}

void Menus::addViewMenu() {
    auto* menu = addMenu("&View");
    int tab = 1;
    for (const auto caption : Layout::kTabCaptions) {
        const QString text = QString::fromUtf16(caption.data(), qsizetype(caption.size()));
        tabs_ += add(menu, QString("&%1 ").arg(tab) + text, QString("Ctrl+%1").arg(tab),
                     [this, tab] { window_.selectTab(tab); });
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
    fullScreen_ =
        addSwitch(menu, "&Full screen", "F11", [this](bool isOn) { window_.setFullScreen(isOn); });
}

void Menus::addEvents(QMenu* menu) {
    eventView_ =
        addSwitch(menu, "&Event view", "Ctrl+E", [this](bool isOn) { window_.showEvents(isOn); });
    eventDetail_ = addSwitch(menu, "Events with &readings", "Ctrl+Shift+E", [this](bool isOn) {
        session_.station().conversation().setDetail(isOn ? Detail::everything : Detail::changes);
    });
    auto* copy = add(menu, "&Copy events", "Ctrl+Shift+C", [this] { window_.copyEvents(); });
    auto* clear =
        add(menu, "C&lear events", "Ctrl+Shift+X", [this] { session_.station().log().clear(); });
    copy->setIconText("Copy");
    clear->setIconText("Clear");
    eventDetail_->setIconText("With readings");
    eventActions_ = {copy, clear, eventDetail_};
}

void Menus::addHelpMenu() {
    auto* menu = addMenu("&Help");
    add(menu, "&Keyboard shortcuts", "F1", [this] { window_.showShortcuts(); });
    add(menu, "&About Marvane Manager", "Shift+F1", [this] {
        window_.showAbout();
    })->setMenuRole(QAction::AboutRole);
}

void Menus::refreshConnection() {
    const Station& station = session_.station();
    const bool isSimulator = session_.simulator() != nullptr;
    const bool isReplay = session_.isReplaying();
    recording_->setChecked(session_.isRecording());
    replay_->setChecked(isReplay);
    stopReplay_->setEnabled(isReplay);
    simulator_->setChecked(isSimulator);
    link_->setChecked(station.isConnected() && !isSimulator && !isReplay);
    nothing_->setChecked(!station.isConnected());
}

void Menus::refreshTabs() {
    const auto& store = window_.panelWidget().store();
    const auto& tabs = store.get<Runtime::StoredTabs>(Layout::kTabs.id);
    int tab = 0;
    for (QAction* action : tabs_) action->setEnabled(tabs.isTabEnabled(tab++));
}

void Menus::refresh() {
    refreshConnection();
    refreshTabs();
    const auto* simulator = session_.simulator();
    quickTest_->setEnabled(simulator != nullptr);
    const auto faults = faults_->actions();
    for (const Simulator::FaultRow& row : Simulator::kFaults) {
        auto* action = faults[qsizetype(Simulator::indexOf(row.fault))];
        action->setEnabled(simulator != nullptr);
        action->setChecked(simulator != nullptr && simulator->has(row.fault));
    }
    readOnly_->setChecked(session_.isReadOnly());
    fullScreen_->setChecked(window_.isFullScreen());
    eventView_->setChecked(window_.areEventsShown());
    eventDetail_->setChecked(session_.station().conversation().detail() == Detail::everything);
}

}  // namespace Orvo::Manager
