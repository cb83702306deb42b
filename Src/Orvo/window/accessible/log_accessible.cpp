#include "Orvo/window/accessible/log_accessible.h"

namespace Orvo::Window {

LogAccessible::LogAccessible(LogView& log) : QAccessibleWidget(&log, QAccessible::List) {}

LogAccessible::~LogAccessible() {
    for (const auto& [row, id] : lines_) QAccessible::deleteAccessibleInterface(id);
}

int LogAccessible::childCount() const {
    return log().model() != nullptr ? log().model()->rowCount() : 0;
}

QAccessibleInterface* LogAccessible::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto known = lines_.find(index);
    if (known != lines_.end()) return QAccessible::accessibleInterface(known->second);
    auto* line = new LineAccessible(log(), index);
    lines_[index] = QAccessible::registerAccessibleInterface(line);
    return line;
}

QAccessibleInterface* LogAccessible::childAt(int x, int y) const {
    return child(log().indexAt(log().viewport()->mapFromGlobal(QPoint(x, y))).row());
}

int LogAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* line = dynamic_cast<const LineAccessible*>(child);
    return line != nullptr ? line->row() : -1;
}

QAccessibleInterface* LogAccessible::focusChild() const {
    return log().hasFocus() ? child(log().currentIndex().row()) : nullptr;
}

bool LineAccessible::isValid() const { return log_ != nullptr && index().isValid(); }

QModelIndex LineAccessible::index() const {
    return log_->model() != nullptr ? log_->model()->index(row_, 0) : QModelIndex();
}

QAccessibleInterface* LineAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(log_);
}

QString LineAccessible::text(QAccessible::Text text) const {
    return text == QAccessible::Name ? index().data().toString() : QString();
}

QRect LineAccessible::rect() const {
    const QRect place = log_->visualRect(index());
    return {log_->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State LineAccessible::state() const {
    QAccessible::State state;
    state.readOnly = true;
    state.selectable = true;
    state.focusable = true;
    state.selected = log_->selectionModel()->isSelected(index());
    state.focused = log_->hasFocus() && log_->currentIndex() == index();
    const bool isInView = log_->viewport()->rect().intersects(log_->visualRect(index()));
    state.offscreen = !isInView;
    state.invisible = !isInView || !log_->isVisible();
    return state;
}

}  // namespace Orvo::Window
