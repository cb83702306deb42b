#pragma once

#include <functional>
#include <vector>

#include <QAction>
#include <QMenu>
#include <QObject>

#include "Orvo/values/types.h"

namespace Orvo::Manager {

class ManagerSession;
class ManagerWindow;

/// The window's menus. Every action has keys of its own, which work in full screen too.
class Menus final : public QObject {
    Q_OBJECT

public:
    explicit Menus(ManagerWindow& window);

    /// Ticks and enables the actions as the window's state is.
    void refresh();

    /// The actions that stand above the event view.
    [[nodiscard]] QList<QAction*> eventActions() const { return eventActions_; }

private:
    using Effect = std::function<void()>;
    using Switch = std::function<void(bool)>;
    using Condition = std::function<bool()>;

    QMenu* addMenu(const QString& title);
    QAction* add(QMenu* menu, const QString& text, const QString& keys, const Effect& effect);
    QAction* addSwitch(QMenu* menu, const QString& text, const QString& keys, const Switch& effect,
                       const Condition& isOn);
    void enableWhile(QAction* action, const Condition& condition);
    [[nodiscard]] bool isSimulated() const;

    void addFileMenu();
    void addSessions(QMenu* menu);
    void addReplay(QMenu* menu);
    void addChannels(QMenu* menu, const QString& firstKey,
                     const std::function<void(Integer)>& save);
    void addConnectMenu();
    void addAmplifierMenu();
    void addButtons(QMenu* menu);
    void addFaults(QMenu* menu);
    void addViewMenu();
    void addZoom(QMenu* menu);
    void addSizes(QMenu* menu);
    void addEvents(QMenu* menu);
    void addHelpMenu();

    ManagerWindow& window_;
    ManagerSession& session_;
    std::vector<std::function<void()>> refreshes_;
    QList<QAction*> eventActions_;
};

}  // namespace Orvo::Manager
