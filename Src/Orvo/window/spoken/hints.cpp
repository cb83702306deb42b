#include "Orvo/window/spoken/hints.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QKeySequence>

#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

namespace {

QString tipOf(const Runtime::Store& store, Widgets::WidgetId id) {
    const QString keys = QKeySequence(keysOf(id)).toString(QKeySequence::NativeText);
    const QString sentence = onLines(sentenceOf(store, id));
    return keys.isEmpty() ? sentence : sentence + " (" + keys + ")";
}

}  // namespace

void describeTo(QWidget& control, Widgets::WidgetId id) {
    control.setAccessibleName(nameOf(id));
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setShortcut(QKeySequence(keysOf(id)));
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
