#include "Orvo/window/accessible/control_accessible.h"

#include <algorithm>
#include <cstdlib>

#include <QAbstractItemView>

#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

SliderAccessible::SliderAccessible(Slider& slider)
    : QAccessibleWidget(&slider, QAccessible::Slider) {}

QString SliderAccessible::text(QAccessible::Text text) const {
    if (text == QAccessible::Value) return valueOf(slider().store(), slider().id());
    return QAccessibleWidget::text(text);
}

void* SliderAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int SliderAccessible::measure(int position) const { return measureAt(slider().id(), position); }

QVariant SliderAccessible::currentValue() const {
    return numberOf(slider().store(), slider().id()).value_or(0);
}

void SliderAccessible::setCurrentValue(const QVariant& value) {
    const auto set = [&slider = slider(), wanted = value.toDouble()] {
        slider.moveTo(positionAt(slider.store(), slider.id(), wanted));
    };
    QMetaObject::invokeMethod(&slider(), set, Qt::QueuedConnection);
}

QVariant SliderAccessible::maximumValue() const {
    return std::max(measure(0), measure(slider().maximum()));
}

QVariant SliderAccessible::minimumValue() const {
    return std::min(measure(0), measure(slider().maximum()));
}

QVariant SliderAccessible::minimumStepSize() const { return std::abs(measure(1) - measure(0)); }

CheckableAccessible::CheckableAccessible(OptionButton& option)
    : QAccessibleWidget(&option, QAccessible::RadioButton) {}

CheckableAccessible::CheckableAccessible(PowerButton& check)
    : QAccessibleWidget(&check, QAccessible::CheckBox) {}

QAccessible::State CheckableAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button().isChecked();
    return state;
}

QStringList CheckableAccessible::actionNames() const {
    if (!button().isEnabled()) return {};
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void CheckableAccessible::doAction(const QString& action) {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    button().animateClick();
}

ScopeAccessible::ScopeAccessible(Scope& scope) : QAccessibleWidget(&scope, QAccessible::Chart) {}

QString ScopeAccessible::text(QAccessible::Text text) const {
    const auto& scope = *static_cast<const Scope*>(widget());
    const bool isValue = text == QAccessible::Value || text == QAccessible::Description;
    return isValue ? valueOf(scope.store(), scope.id()) : QAccessibleWidget::text(text);
}

ComboAccessible::ComboAccessible(ComboBox& combo)
    : QAccessibleWidget(&combo, QAccessible::ComboBox) {}

QAccessibleInterface* ComboAccessible::child(int index) const {
    return index == 0 && childCount() == 1 ? QAccessible::queryAccessibleInterface(combo().view())
                                           : nullptr;
}

int ComboAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child != nullptr && child == this->child(0) ? 0 : -1;
}

QString ComboAccessible::text(QAccessible::Text text) const {
    if (text == QAccessible::Value) return valueOf(combo().store(), combo().id());
    return QAccessibleWidget::text(text);
}

QAccessible::State ComboAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = combo().view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QStringList ComboAccessible::actionNames() const {
    if (!combo().isEnabled()) return {};
    return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void ComboAccessible::doAction(const QString& action) {
    if (action != showMenuAction() && action != pressAction())
        return QAccessibleWidget::doAction(action);
    const auto toggle = [&combo = combo()] {
        return combo.view()->isVisible() ? combo.hidePopup() : combo.showPopup();
    };
    if (combo().isEnabled()) QMetaObject::invokeMethod(&combo(), toggle, Qt::QueuedConnection);
}

}  // namespace Orvo::Window
