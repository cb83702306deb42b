#pragma once

#include <unordered_map>

#include <QAccessibleWidget>
#include <QPointer>

#include "Orvo/window/accessible/leaf_accessible.h"
#include "Orvo/window/painted/page.h"

namespace Orvo::Window {

/// A painted lamp, readout or text: a name, and what it says as its value and description. A number
/// would be offered to be increased.
class PaintedAccessible final : public LeafAccessible {
public:
    PaintedAccessible(Page& page, WidgetId id);

    /// Tells of the value if it isn't the one last told.
    void announce();

    [[nodiscard]] bool isValid() const override { return page_ != nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QString text(QAccessible::Text text) const override;
    [[nodiscard]] QRect rect() const override;
    // An indicator's role would suit a lamp, but is unknown on the X desktops.
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::StaticText; }
    [[nodiscard]] QAccessible::State state() const override;

private:
    [[nodiscard]] QString value() const;

    const QPointer<Page> page_;
    const WidgetId id_;
    QString told_;
};

/// A page: what is painted on it and its controls, in the layout's order and
/// without what is hidden.
class PageAccessible final : public QAccessibleWidget {
public:
    explicit PageAccessible(Page& page);
    ~PageAccessible() override;

    void announce(WidgetId id);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

private:
    [[nodiscard]] Page& page() const { return *static_cast<Page*>(widget()); }
    [[nodiscard]] std::vector<WidgetId> children() const;
    [[nodiscard]] QAccessibleInterface* interfaceOf(WidgetId id) const;
    [[nodiscard]] PaintedAccessible* speaker(WidgetId id) const;

    mutable std::unordered_map<WidgetId, QAccessible::Id> speakers_;  // as far as asked for
};

}  // namespace Orvo::Window
