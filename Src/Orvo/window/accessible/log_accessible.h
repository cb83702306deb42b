#pragma once

#include <unordered_map>

#include <QAccessibleWidget>
#include <QPointer>

#include "Orvo/window/accessible/leaf_accessible.h"
#include "Orvo/window/controls/log_view.h"

namespace Orvo::Window {

/// The message log as a list of its lines.
class LogAccessible final : public QAccessibleWidget {
public:
    explicit LogAccessible(LogView& log);
    ~LogAccessible() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    [[nodiscard]] LogView& log() const { return *static_cast<LogView*>(widget()); }

    mutable std::unordered_map<int, QAccessible::Id> lines_;  // as far as asked for
};

/// The line of a number, also after the log has been emptied and filled again.
class LineAccessible final : public LeafAccessible {
public:
    LineAccessible(LogView& log, int row) : log_(&log), row_(row) {}

    [[nodiscard]] int row() const { return row_; }

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QWindow* window() const override { return log_->window()->windowHandle(); }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QString text(QAccessible::Text text) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override;

private:
    /// Invalid for lines that are gone.
    [[nodiscard]] QModelIndex index() const;

    const QPointer<LogView> log_;
    const int row_;
};

}  // namespace Orvo::Window
