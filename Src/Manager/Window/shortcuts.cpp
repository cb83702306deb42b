#include "Manager/Window/shortcuts.h"

#include <algorithm>

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Orvo/layout/layout.h"
#include "Orvo/window/spoken/names.h"

namespace Orvo::Manager {
namespace {

using Shortcuts = std::vector<Shortcut>;

// "Save &picture of the panel…" without what only a menu needs.
QString plain(QString text) {
    static const QRegularExpression leadingNumber("^&\\d (?=\\D)");
    return text.remove(leadingNumber).remove('&').remove("…");
}

QString keysOf(const QAction& action) {
    QStringList keys;
    for (const QKeySequence& sequence : action.shortcuts()) {
        keys += sequence.toString(QKeySequence::NativeText);
    }
    return keys.join(" or ");
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
        const Shortcut row{"Panel", Window::nameOf(widget),
                           keys.toString(QKeySequence::NativeText)};
        const bool isKnown = std::any_of(rows.begin(), rows.end(), [&](const Shortcut& known) {
            return known.group == row.group && known.keys == row.keys;
        });
        if (!row.keys.isEmpty() && !isKnown) rows.push_back(row);
    }
}

QTreeWidget* makeTable(const Shortcuts& rows) {
    auto* table = new QTreeWidget;
    table->setHeaderLabels({"Action", "Keys"});
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
    return rows;
}

void openShortcutsDialog(QMainWindow& window) {
    auto* dialog = new QDialog(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle("Keyboard shortcuts");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(makeTable(shortcutsOf(window)));
    layout->addWidget(buttons);
    dialog->resize(560, 560);
    dialog->open();
}

}  // namespace Orvo::Manager
