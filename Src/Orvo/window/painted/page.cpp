#include "Orvo/window/painted/page.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

Page::Page(const Runtime::Store& store, int tab, QWidget* parent)
    : QWidget(parent), store_(store), tab_(tab) {
    setAccessibleName(toQt(StringView(Layout::kTabCaptions[std::size_t(tab)])));
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        if (pageOf(id) != tab) continue;
        auto painted = PaintedKinds::visit(
            Layout::kindOf(id),
            [&]<class Shown>(std::type_identity<Shown> /*kind*/) -> std::unique_ptr<Painted> {
                return std::make_unique<Shown>(store, id);
            });
        if (!painted) continue;
        layers_.push_back({id, std::move(painted), {}});
        if (!nameOf(id).isEmpty()) speakers_.push_back(id);
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

std::size_t Page::layerOf(WidgetId id) const {
    auto layer = std::lower_bound(layers_.begin(), layers_.end(), id,
                                  [](const Layer& a, WidgetId b) { return a.id < b; });
    if (layer != layers_.end() && layer->id != id) layer = layers_.end();
    return std::size_t(layer - layers_.begin());
}

bool Page::repaintWidget(WidgetId id) {
    const std::size_t at = layerOf(id);
    if (at == layers_.size()) return false;
    Layer& layer = layers_[at];
    const QRect before = std::exchange(layer.bounds, layer.painted->bounds());
    update(QRegion(before).united(layer.bounds));
    return true;
}

QRect Page::placeOf(WidgetId speaker) const {
    QRect place = boundsOf(speaker);
    const Layout::Readout* readout = readoutWith(speaker);
    if (readout == nullptr) return place;
    for (const WidgetId digit : readout->digits()) place = place.united(boundsOf(digit));
    return place;
}

QRect Page::boundsOf(WidgetId id) const { return layers_[layerOf(id)].painted->bounds(); }

bool Page::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    showTip(static_cast<QHelpEvent&>(*event));
    return true;
}

void Page::showTip(const QHelpEvent& event) {
    for (const WidgetId id : speakers_) {
        if (!store_.isShown(id) || !placeOf(id).contains(event.pos())) continue;
        return QToolTip::showText(event.globalPos(), sentenceOf(store_, id), this, placeOf(id));
    }
    QToolTip::hideText();
}

void Page::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Palette::kPage);
    for (const Layer& layer : layers_) {
        if (!event->region().intersects(layer.bounds) || !layer.painted->isShown()) continue;
        painter.save();
        layer.painted->paint(painter);
        painter.restore();
    }
}

}  // namespace Orvo::Window
