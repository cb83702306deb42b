#include "Orvo/window/accessible/page_accessible.h"

#include <algorithm>
#include <utility>

#include "Orvo/window/controls/control.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

PaintedAccessible::PaintedAccessible(Page& page, WidgetId id) : page_(&page), id_(id) {}

QString PaintedAccessible::value() const { return valueOf(page_->store(), id_); }

void PaintedAccessible::announce() {
    const QString now = value();
    if (std::exchange(told_, now) == now) return;
    QAccessibleEvent description(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}

QWindow* PaintedAccessible::window() const { return page_->window()->windowHandle(); }

QAccessibleInterface* PaintedAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(page_);
}

QString PaintedAccessible::text(QAccessible::Text text) const {
    if (text == QAccessible::Name) return nameOf(id_);
    return text == QAccessible::Value || text == QAccessible::Description ? value() : QString();
}

QRect PaintedAccessible::rect() const {
    const QRect place = page_->placeOf(id_);
    return {page_->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State PaintedAccessible::state() const {
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = !page_->isVisible() || !page_->store().isShown(id_);
    return state;
}

PageAccessible::PageAccessible(Page& page) : QAccessibleWidget(&page, QAccessible::Pane) {}

PageAccessible::~PageAccessible() {
    for (const auto& [widget, id] : speakers_) QAccessible::deleteAccessibleInterface(id);
}

void PageAccessible::announce(WidgetId id) { speaker(id)->announce(); }

std::vector<WidgetId> PageAccessible::children() const {
    page().fill();
    std::vector<WidgetId> all = page().speakers();
    for (QObject* child : page().children()) {
        if (const auto* control = dynamic_cast<Control*>(child)) all.push_back(control->id());
    }
    std::erase_if(all, [this](WidgetId id) { return !page().store().isShown(id); });
    std::sort(all.begin(), all.end());
    return all;
}

int PageAccessible::childCount() const { return int(children().size()); }

QAccessibleInterface* PageAccessible::child(int index) const {
    const auto all = children();
    if (index < 0 || std::size_t(index) >= all.size()) return nullptr;
    return interfaceOf(all[std::size_t(index)]);
}

QAccessibleInterface* PageAccessible::interfaceOf(WidgetId id) const {
    for (QObject* child : page().children()) {
        const auto* control = dynamic_cast<Control*>(child);
        if (control != nullptr && control->id() == id)
            return QAccessible::queryAccessibleInterface(child);
    }
    return speaker(id);
}

PaintedAccessible* PageAccessible::speaker(WidgetId id) const {
    const auto known = speakers_.find(id);
    if (known != speakers_.end())
        return static_cast<PaintedAccessible*>(QAccessible::accessibleInterface(known->second));
    auto* made = new PaintedAccessible(page(), id);
    speakers_[id] = QAccessible::registerAccessibleInterface(made);
    return made;
}

QAccessibleInterface* PageAccessible::childAt(int x, int y) const {
    for (const WidgetId id : children()) {
        QAccessibleInterface* child = interfaceOf(id);
        if (!child->state().invisible && child->rect().contains(x, y)) return child;
    }
    return nullptr;
}

int PageAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto all = children();
    const auto at =
        std::find_if(all.begin(), all.end(), [&](WidgetId id) { return interfaceOf(id) == child; });
    return at == all.end() ? -1 : int(at - all.begin());
}

}  // namespace Orvo::Window
