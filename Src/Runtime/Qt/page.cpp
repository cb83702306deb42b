#include "Runtime/Qt/page.h"

#include <algorithm>
#include <utility>

#include <QPaintEvent>
#include <QPainter>

namespace Orvo::Window {

Page::Page(const Runtime::Store& store, int tab, QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        if (pageOf(id) != tab) continue;
        if (auto painted = makePainted(store, id)) layers_.push_back({id, std::move(painted), {}});
    }
}

void Page::layOut(const Scale& scale) {
    resize(scale.panelSize());
    for (Layer& layer : layers_) {
        layer.painted->layOut(scale);
        layer.bounds = layer.painted->bounds();
    }
    update();
}

bool Page::repaintWidget(WidgetId id) {
    const auto layer = std::lower_bound(layers_.begin(), layers_.end(), id,
                                        [](const Layer& a, WidgetId b) { return a.id < b; });
    if (layer == layers_.end() || layer->id != id) return false;
    const QRect before = std::exchange(layer->bounds, layer->painted->bounds());
    update(QRegion(before).united(layer->bounds));
    return true;
}

void Page::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor(24, 29, 38));
    for (const Layer& layer : layers_) {
        if (!event->region().intersects(layer.bounds) || !layer.painted->isShown()) continue;
        painter.save();
        layer.painted->paint(painter);
        painter.restore();
    }
}

}  // namespace Orvo::Window
