#pragma once

#include <vector>

#include <QMainWindow>
#include <QString>

namespace Orvo::Manager {

/// What a key does.
struct Shortcut {
    QString group;  ///< the menu, or "Panel"
    QString what;
    QString keys;
};

/// Those of the window's menus, in their order, and of the panel's buttons, on whatever tab.
std::vector<Shortcut> shortcutsOf(const QMainWindow& window);

/// Shows them all.
void openShortcutsDialog(QMainWindow& window);

}  // namespace Orvo::Manager
