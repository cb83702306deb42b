#include "Manager/Window/manager_window.h"
#include "Manager/Window/menus.h"

namespace Orvo::Manager {

void Menus::addFileMenu() {
    auto* menu = addMenu(tr("&File"));
    add(menu, tr("Save &picture of the panel…"), "Ctrl+S", [this] { window_.savePicture(); });
    addChannels(menu->addMenu(tr("Save picture of a &scope")), "Ctrl+G",
                [this](Integer channel) { window_.saveScopePicture(channel); });
    addChannels(menu->addMenu(tr("Save samples of a &trace")), "Ctrl+T",
                [this](Integer channel) { window_.saveTrace(channel); });
    menu->addSeparator();
    add(menu, tr("&Copy message log"), "Ctrl+L", [this] { window_.copyMessageLog(); });
    add(menu, tr("Save message &log…"), "Ctrl+Shift+L", [this] { window_.saveMessageLog(); });
    menu->addSeparator();
    addSessions(menu);
    menu->addSeparator();
    add(menu, tr("&Quit"), "Ctrl+Q", [this] { window_.close(); })->setMenuRole(QAction::QuitRole);
}

void Menus::addSessions(QMenu* menu) {
    const auto record = [this](bool isOn) {
        isOn ? window_.askForRecording() : session_.stopRecording();
    };
    const auto replay = [this](bool isOn) {
        isOn ? window_.askForReplay() : session_.stopReplay();
    };
    const auto isReplaying = [this] { return session_.isReplaying(); };
    enableWhile(addSwitch(menu, tr("&Record a session…"), "F3", record,
                          [this] { return session_.isRecording(); }),
                [isReplaying] { return !isReplaying(); });
    addSwitch(menu, tr("R&eplay a session…"), "F5", replay, isReplaying);
    const auto stop = [this, isReplaying] {
        isReplaying() ? session_.stopReplay() : window_.setFullScreen(false);
    };
    enableWhile(add(menu, tr("St&op the replay, else leave full screen"), "Esc", stop),
                [this, isReplaying] { return isReplaying() || window_.isFullScreen(); });
    addReplay(menu);
}

void Menus::addReplay(QMenu* menu) {
    const auto addWhileReplaying = [this](QMenu* below, const QString& text, const QString& keys,
                                          const std::function<void(Replay&, bool)>& effect,
                                          const std::function<bool(const Replay&)>& isOn) {
        auto* action = addSwitch(
            below, text, keys,
            [this, effect](bool isTicked) {
                if (auto* replay = session_.replay()) effect(*replay, isTicked);
            },
            [this, isOn] { return session_.isReplaying() && isOn(*session_.replay()); });
        enableWhile(action, [this] { return session_.isReplaying(); });
    };
    addWhileReplaying(menu, tr("P&ause the replay"), "Shift+F5", &Replay::setPaused,
                      &Replay::isPaused);
    auto* speeds = menu->addMenu(tr("Spee&d of the replay"));
    int number = 1;
    for (const ReplaySpeed& speed : kReplaySpeeds) {
        const QString name = QString::fromUtf8(speed.name.data(), qsizetype(speed.name.size()));
        addWhileReplaying(
            speeds, QString("&%1 ").arg(number) + name, QString("Ctrl+P, %1").arg(number),
            [&speed](Replay& replay, bool) { replay.setSpeed(speed); },
            [&speed](const Replay& replay) { return &replay.speed() == &speed; });
        ++number;
    }
}

void Menus::addChannels(QMenu* menu, const QString& firstKey,
                        const std::function<void(Integer)>& save) {
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        const QString number = QString::number(channel);
        add(menu, tr("Channel &%1…").arg(number), firstKey + ", " + number,
            [save, channel] { save(channel); });
    }
}

}  // namespace Orvo::Manager
