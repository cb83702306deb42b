#include "Manager/Window/shortcuts.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Orvo/layout/layout.h"
#include "Orvo/window/spoken/names.h"

namespace Orvo::Manager {
namespace {

using Shortcuts = std::vector<Shortcut>;

class ShortcutsDialog {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::ShortcutsDialog)
};

// "Save &picture of the panel…" without what only a menu needs.
QString plain(QString text) {
    static const QRegularExpression leadingNumber("^&\\d ");
    return text.remove(leadingNumber).remove('&').remove("…");
}

QString keysOf(const QAction& action) {
    QStringList keys;
    for (const QKeySequence& sequence : action.shortcuts()) {
        keys += sequence.toString(QKeySequence::NativeText);
    }
    return keys.join(ShortcutsDialog::tr(" or "));
}

void addMenu(Shortcuts& rows, const QMenu& menu, const QString& group, const QString& before) {
    for (const QAction* action : menu.actions()) {
        const QString text = before + plain(action->text());
        if (const auto* below = action->menu<QMenu*>()) {
            addMenu(rows, *below, group, text + ": ");
        } else if (!action->isSeparator()) {
            rows.push_back({group, text, keysOf(*action)});
        }
    }
}

// Buttons that stand on several tabs share their keys.
void addButtons(Shortcuts& rows) {
    for (Widgets::WidgetId widget = 0; widget < Layout::kWidgetCount; ++widget) {
        const QKeySequence keys(Window::keysOf(widget));
        const Shortcut row{ShortcutsDialog::tr("Panel"), Window::nameOf(widget),
                           keys.toString(QKeySequence::NativeText)};
        const bool isKnown = std::any_of(rows.begin(), rows.end(), [&](const Shortcut& known) {
            return known.group == row.group && known.keys == row.keys;
        });
        if (!row.keys.isEmpty() && !isKnown) rows.push_back(row);
    }
}

// Of the further windows, such as that of the scopes.
void addWindow(Shortcuts& rows, const QMainWindow& window) {
    for (const QAction* action : window.findChildren<QAction*>()) {
        const QString keys = keysOf(*action);
        if (!keys.isEmpty()) rows.push_back({window.windowTitle(), plain(action->text()), keys});
    }
}

QTreeWidget* makeTable(const Shortcuts& rows) {
    auto* table = new QTreeWidget;
    table->setHeaderLabels({ShortcutsDialog::tr("Action"), ShortcutsDialog::tr("Keys")});
    table->setRootIsDecorated(false);
    QTreeWidgetItem* group = nullptr;
    for (const Shortcut& row : rows) {
        if (group == nullptr || group->text(0) != row.group) {
            group = new QTreeWidgetItem(table, {row.group});
            group->setExpanded(true);
        }
        new QTreeWidgetItem(group, {row.what, row.keys});
    }
    table->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    return table;
}

}  // namespace

std::vector<Shortcut> shortcutsOf(const QMainWindow& window) {
    Shortcuts rows;
    const auto* bar = qobject_cast<QMenuBar*>(window.menuWidget());
    for (const QAction* action : bar->actions()) {
        addMenu(rows, *action->menu<QMenu*>(), plain(action->text()), {});
    }
    addButtons(rows);
    for (const auto* further : window.findChildren<QMainWindow*>()) addWindow(rows, *further);
    return rows;
}

void openShortcutsDialog(QMainWindow& window) {
    auto* dialog = new QDialog(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(ShortcutsDialog::tr("Keyboard shortcuts"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(makeTable(shortcutsOf(window)));
    layout->addWidget(buttons);
    dialog->resize(QSize(560, 560).boundedTo(window.screen()->availableSize() * 9 / 10));
    dialog->open();
}

}  // namespace Orvo::Manager
