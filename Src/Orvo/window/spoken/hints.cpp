#include "Orvo/window/spoken/hints.h"

#include <array>
#include <string_view>

#include <QAbstractButton>
#include <QAccessible>
#include <QKeySequence>

#include "Orvo/layout/layout.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

namespace {

struct Shortcut {
    std::string_view widget;
    const char* keys;
};

// A shortcut works on the tab in front only, so twins share theirs. It activates its widget as the
// keyboard does, so where that asks the host for nothing there is none.
constexpr auto kShortcuts = std::to_array<Shortcut>({
    {"cmdOnOff", "Alt+P"},
    {"cmdReadInData", "Alt+I"},
    {"Command1", "Alt+R"},
    {"cmdGo12", "Alt+S"},
    {"cmdGo34", "Alt+S"},
    {"Command12", "Alt+1"},
    {"Command11", "Alt+2"},
    {"Command14", "Alt+3"},
    {"Command18", "Alt+4"},
});

QKeySequence shortcutOf(Widgets::WidgetId id) {
    for (const Shortcut& shortcut : kShortcuts) {
        if (shortcut.widget == Layout::describe(id).name) return {shortcut.keys};
    }
    return {};
}

QString tipOf(const Runtime::Store& store, Widgets::WidgetId id) {
    const QString keys = shortcutOf(id).toString(QKeySequence::NativeText);
    const QString sentence = sentenceOf(store, id);
    return keys.isEmpty() ? sentence : sentence + " (" + keys + ")";
}

}  // namespace

void describeTo(QWidget& control, Widgets::WidgetId id) {
    control.setAccessibleName(nameOf(id));
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setShortcut(shortcutOf(id));
}

void tellValueTo(QWidget& control, const Runtime::Store& store, Widgets::WidgetId id) {
    const QString value = valueOf(store, id);
    if (value == control.accessibleDescription() && !control.toolTip().isEmpty()) return;
    control.setToolTip(tipOf(store, id));
    control.setAccessibleDescription(value);
    const auto number = numberOf(store, id);
    if (!number) return;
    QAccessibleValueChangeEvent event(&control, *number);
    QAccessible::updateAccessibility(&event);
}

}  // namespace Orvo::Window
