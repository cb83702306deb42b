#pragma once

#include <functional>

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QObject>

#include "Orvo/values/types.h"

namespace Orvo::Manager {

class ManagerSession;
class ManagerWindow;

/// The window's menus. Every action has keys of its own, which work in full screen too.
class Menus final : public QObject {
public:
    explicit Menus(ManagerWindow& window);

    /// Ticks and enables the actions as the window's state is.
    void refresh();

    /// The actions that stand above the event view.
    [[nodiscard]] QList<QAction*> eventActions() const { return eventActions_; }

private:
    using Command = std::function<void()>;
    using Switch = std::function<void(bool)>;

    QMenu* addMenu(const QString& title);
    QAction* add(QMenu* menu, const QString& text, const QString& keys, const Command& command);
    QAction* addSwitch(QMenu* menu, const QString& text, const QString& keys,
                       const Switch& command);

    void addFileMenu();
    void addSessions(QMenu* menu);
    void addChannels(QMenu* menu, const QString& firstKey, void (ManagerWindow::*save)(Integer));
    void addConnectMenu();
    void addAmplifierMenu();
    void addFaults(QMenu* menu);
    void addViewMenu();
    void addZoom(QMenu* menu);
    void addEvents(QMenu* menu);
    void addHelpMenu();
    void refreshConnection();
    void refreshTabs();

    ManagerWindow& window_;
    ManagerSession& session_;
    QAction* recording_ = nullptr;
    QAction* replay_ = nullptr;
    QAction* stopReplay_ = nullptr;
    QActionGroup connection_{this};
    QList<QAction*> tabs_;
    QAction* simulator_ = nullptr;
    QAction* link_ = nullptr;
    QAction* nothing_ = nullptr;
    QAction* quickTest_ = nullptr;
    QMenu* faults_ = nullptr;
    QAction* readOnly_ = nullptr;
    QAction* fullScreen_ = nullptr;
    QAction* eventView_ = nullptr;
    QAction* eventDetail_ = nullptr;
    QList<QAction*> eventActions_;
};

}  // namespace Orvo::Manager
