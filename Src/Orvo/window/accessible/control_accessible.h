#pragma once

#include <QAccessibleWidget>

#include "Orvo/window/controls/buttons.h"
#include "Orvo/window/controls/combo_box.h"
#include "Orvo/window/controls/scope.h"
#include "Orvo/window/controls/slider.h"

// What assistive technology does goes the person's way and doesn't wait for what comes of it: a
// prompt may open, or the widget may be deleted.
namespace Orvo::Window {

/// In the unit that a person knows, with more being more.
class SliderAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderAccessible(Slider& slider);

    [[nodiscard]] QString text(QAccessible::Text text) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumValue() const override;
    [[nodiscard]] QVariant minimumStepSize() const override;

private:
    [[nodiscard]] Slider& slider() const { return *static_cast<Slider*>(widget()); }
    [[nodiscard]] int measure(int position) const;
};

/// An option or a check box: a click is all that can be done to it. The toolkit's own would toggle
/// the button behind the store's back.
class CheckableAccessible final : public QAccessibleWidget {
public:
    explicit CheckableAccessible(OptionButton& option);
    explicit CheckableAccessible(PowerButton& check);

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    [[nodiscard]] PressButton& button() const { return *static_cast<PressButton*>(widget()); }
};

/// Measured when it is asked, and not for each trace.
class ScopeAccessible final : public QAccessibleWidget {
public:
    explicit ScopeAccessible(Scope& scope);

    [[nodiscard]] QString text(QAccessible::Text text) const override;
};

/// Called by its name, where the toolkit's own is called by what is picked. Its list is there while
/// its tab is in front.
class ComboAccessible final : public QAccessibleWidget {
public:
    explicit ComboAccessible(ComboBox& combo);

    [[nodiscard]] int childCount() const override { return combo().isVisible() ? 1 : 0; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text text) const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    [[nodiscard]] ComboBox& combo() const { return *static_cast<ComboBox*>(widget()); }
};

}  // namespace Orvo::Window
