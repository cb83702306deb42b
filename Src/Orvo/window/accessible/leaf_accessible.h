#pragma once

#include <QAccessibleInterface>

namespace Orvo::Window {

/// What is no widget of its own and contains nothing.
class LeafAccessible : public QAccessibleInterface {
public:
    [[nodiscard]] QObject* object() const final { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int) const final { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const final { return nullptr; }
    [[nodiscard]] int childCount() const final { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const final { return -1; }
    void setText(QAccessible::Text, const QString&) final {}
};

}  // namespace Orvo::Window
