#include "Manager/Window/menus.h"

#include <QActionGroup>
#include <QMenuBar>

#include "Manager/Window/manager_window.h"
#include "Orvo/layout/common_tab.h"
#include "Orvo/layout/roles.h"
#include "Orvo/service/information_entry.h"
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

void Menus::addConnectMenu() {
    auto* menu = addMenu(tr("&Connect"));
    const auto isConnected = [this] { return session_.station().isConnected(); };
    const auto isLink = [this, isConnected] {
        return isConnected() && !isSimulated() && !session_.isReplaying();
    };
    auto* group = new QActionGroup(this);
    group->addAction(addSwitch(
        menu, tr("&Simulated amplifier"), "F6",
        [this](bool) {
            if (!isSimulated()) session_.connectSimulator();
        },
        [this] { return isSimulated(); }));
    group->addAction(addSwitch(
        menu, tr("&Link…"), "F7", [this](bool) { window_.askForLink(); }, isLink));
    group->addAction(addSwitch(
        menu, tr("&Nothing"), "F8", [this](bool) { session_.connectNothing(); },
        [isConnected] { return !isConnected(); }));
}

void Menus::addAmplifierMenu() {
    auto* menu = addMenu(tr("&Amplifier"));
    addButtons(menu);
    menu->addSeparator();
    auto* quickTest = add(menu, tr("Run the &quick test"), "F9", [this] {
        if (auto* simulator = session_.simulator()) simulator->runQuickTest();
    });
    enableWhile(quickTest, [this] { return isSimulated(); });
    addFaults(menu->addMenu(tr("&Faults of the simulator")));
    menu->addSeparator();
    addSwitch(
        menu, tr("&Read-only mode"), "F2", [this](bool isOn) { session_.setReadOnly(isOn); },
        [this] { return session_.isReadOnly(); });
}

// What a person does on the "Common" tab, from wherever they are.
void Menus::addButtons(QMenu* menu) {
    using Runtime::Deed;
    const auto addButton = [&](const QString& text, const QString& keys, const Deed& deed) {
        auto* action =
            add(menu, text, keys, [this, deed] { window_.panelWidget().store().perform(deed); });
        enableWhile(action, [this, widget = deed.widget] {
            return window_.panelWidget().store().acceptsInput(widget);
        });
    };
    using Layout::kCommon;
    addButton(tr("&Power on or off"), "Ctrl+Shift+P", Deed::click(kCommon.powerButton));
    addButton(tr("&Mute all channels or none"), "Ctrl+Shift+M", Deed::click(kCommon.muteButton));
    addButton(tr("Read the internal &data"), "Ctrl+D", Deed::click(kCommon.internalDataButton));
    addButton(tr("&Enter information…"), "Ctrl+I",
              Deed::key(kCommon.log, char16_t(InformationEntry::kStartKey)));
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
    auto* menu = addMenu(tr("&View"));
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
    addSwitch(
        menu, tr("Sco&pe window"), "F4", [this](bool isOn) { window_.showScopes(isOn); },
        [this] { return window_.areScopesShown(); });
    addEvents(menu);
}

void Menus::addZoom(QMenu* menu) {
    add(menu, tr("Zoom &in"), "Ctrl++", [this] {
        window_.zoomIn();
    })->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
    add(menu, tr("Zoom &out"), "Ctrl+-", [this] { window_.zoomOut(); });
    addSizes(menu->addMenu(tr("&Zoom to")));
    addSwitch(
        menu, tr("&Full screen"), "F11", [this](bool isOn) { window_.setFullScreen(isOn); },
        [this] { return window_.isFullScreen(); });
    addSwitch(
        menu, tr("&Light frame"), "Ctrl+Shift+I",
        [this](bool isOn) { window_.setFrame(isOn ? Frame::light : Frame::dark); },
        [this] { return window_.frame() == Frame::light; });
}

// Those that a person may choose, one of them or none being ticked.
void Menus::addSizes(QMenu* menu) {
    auto* group = new QActionGroup(this);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    const auto add = [&](const QString& text, const QString& keys, std::optional<int> percent) {
        auto* action = addSwitch(
            menu, text, keys, [this, percent](bool) { window_.setZoom(percent); },
            [this, percent] { return window_.zoom() == percent; });
        group->addAction(action);
        return action;
    };
    add(tr("&Fit the window"), "Ctrl+9", {});
    int number = 1;
    for (const int percent : kPresets) {
        const QString keys = QString("Ctrl+Z, %1").arg(number++);
        auto* action = add(tr("%1 %").arg(percent), keys, percent);
        if (percent == kPlainZoom) action->setShortcuts({{"Ctrl+0"}, {keys}});
    }
}

void Menus::addEvents(QMenu* menu) {
    auto& station = session_.station();
    addSwitch(
        menu, tr("&Event view"), "Ctrl+E", [this](bool isOn) { window_.showEvents(isOn); },
        [this] { return window_.areEventsShown(); });
    auto* detail = addSwitch(
        menu, tr("Events with &readings"), "Ctrl+Shift+E",
        [&station](bool isOn) {
            station.conversation().setDetail(isOn ? Detail::everything : Detail::changes);
        },
        [&station] { return station.conversation().detail() == Detail::everything; });
    auto* script = addSwitch(
        menu, tr("Events as panel &script"), "Ctrl+Shift+D",
        [&station](bool isOn) {
            station.conversation().setForm(isOn ? Form::script : Form::words);
        },
        [&station] { return station.conversation().form() == Form::script; });
    auto* copy = add(menu, tr("&Copy events"), "Ctrl+Shift+C", [this] { window_.copyEvents(); });
    auto* save = add(menu, tr("Save e&vents…"), "Ctrl+Shift+S", [this] { window_.saveEvents(); });
    auto* clear =
        add(menu, tr("C&lear events"), "Ctrl+Shift+X", [&station] { station.log().clear(); });
    copy->setIconText(tr("Copy"));
    save->setIconText(tr("Save…"));
    clear->setIconText(tr("Clear"));
    detail->setIconText(tr("With readings"));
    script->setIconText(tr("As script"));
    eventActions_ = {copy, save, clear, detail, script};
}

void Menus::addHelpMenu() {
    auto* menu = addMenu(tr("&Help"));
    add(menu, tr("&Keyboard shortcuts"), "F1", [this] { window_.showShortcuts(); });
    add(menu, tr("&About Marvane Manager"), "Shift+F1", [this] {
        window_.showAbout();
    })->setMenuRole(QAction::AboutRole);
}

void Menus::refresh() {
    for (const auto& refresh : refreshes_) refresh();
}

bool Menus::isSimulated() const { return session_.simulator() != nullptr; }

}  // namespace Orvo::Manager
