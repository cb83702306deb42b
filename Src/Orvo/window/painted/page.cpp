#include "Orvo/window/painted/page.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "Orvo/window/drawing/kept_picture.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"
#include "Orvo/window/painted/painted_kinds.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

namespace {

constexpr int kFadeTime = 80;  // milliseconds

bool isForGround(const Painted& painted) { return painted.isAsLaidOut() && painted.isShown(); }

}  // namespace

Page::Page(const Runtime::Store& store, int tab, std::function<void()> fill, QWidget* parent)
    : QWidget(parent), store_(store), tab_(tab), fill_(std::move(fill)) {
    setAccessibleName(toQt(StringView(Layout::kTabCaptions[std::size_t(tab)])));
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        if (pageOf(id) != tab) continue;
        auto painted = PaintedKinds::visit(
            Layout::kindOf(id),
            [&]<class Shown>(std::type_identity<Shown> /*kind*/) -> std::unique_ptr<Painted> {
                return std::make_unique<Shown>(store, id);
            });
        if (painted) layers_.push_back({id, std::move(painted)});
    }
}

void Page::layOut(const Scale& scale) {
    scale_ = scale;
    resize(scale.panelSize());
    for (Layer& layer : layers_) {
        layer.painted->layOut(scale);
        layer.ink = {};
        layer.isOnGround = true;
    }
    ground_ = {};
    update();
}

std::size_t Page::layerOf(WidgetId id) const {
    auto layer = std::lower_bound(layers_.begin(), layers_.end(), id,
                                  [](const Layer& a, WidgetId b) { return a.id < b; });
    if (layer != layers_.end() && layer->id != id) layer = layers_.end();
    return std::size_t(layer - layers_.begin());
}

void Page::noteChange(WidgetId id) {
    const std::size_t at = layerOf(id);
    if (at == layers_.size() || layers_[at].ink.isNull()) return;
    Layer& layer = layers_[at];
    const QRect before = std::exchange(layer.ink, layer.painted->ink());
    note(before);
    noteLight(layer);
    if (layer.isOnGround && !isForGround(*layer.painted)) ground_ = {};
    if (layer.ink == before) return;
    note(layer.ink);
    if (isUnderGround(at)) ground_ = {};
}

void Page::noteLight(Layer& layer) {
    const bool wasLit = std::exchange(layer.isLit, layer.painted->isLampLit());
    if (!layer.isLit) return layer.fade.invalidate();
    if (wasLit || !isVisible()) return;
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0) return;
    layer.fade.start();
    fading_.start(kFrameTime, this);
}

void Page::timerEvent(QTimerEvent*) {
    bool goesOn = false;
    for (Layer& layer : layers_) {
        if (!layer.fade.isValid()) continue;
        if (layer.fade.hasExpired(kFadeTime)) layer.fade.invalidate();
        goesOn |= layer.fade.isValid();
        update(layer.ink);
    }
    if (!goesOn) fading_.stop();
}

void Page::settle() {
    if (!fading_.isActive()) return;
    fading_.stop();
    for (Layer& layer : layers_) {
        if (layer.fade.isValid()) update(layer.ink);
        layer.fade.invalidate();
    }
}

// The digits of a readout are one place: each more makes all that painting does with them dearer.
void Page::note(const QRect& place) {
    if (!changed_.empty()) {
        QRect& last = changed_.back();
        const bool isInLine = last.top() == place.top() && last.bottom() == place.bottom();
        if (isInLine && last.right() + 1 >= place.left() && last.left() <= place.left()) {
            last = last.united(place);
            return;
        }
    }
    changed_.push_back(place);
}

void Page::repaintChanges() {
    QRegion region;
    for (const QRect& place : std::exchange(changed_, {})) region += place;
    update(region);
}

bool Page::isUnderGround(std::size_t layer) const {
    return std::any_of(
        layers_.begin() + std::ptrdiff_t(layer) + 1, layers_.end(), [&](const Layer& above) {
            return above.isOnGround && layers_[layer].ink.intersects(above.painted->core());
        });
}

std::vector<WidgetId> Page::speakers() const {
    std::vector<WidgetId> all;
    for (const Layer& layer : layers_) {
        if (!nameOf(layer.id).isEmpty()) all.push_back(layer.id);
    }
    return all;
}

bool Page::isSpeaker(WidgetId id) const {
    return layerOf(id) != layers_.size() && !nameOf(id).isEmpty();
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
    for (const WidgetId id : speakers()) {
        if (!store_.isShown(id) || !placeOf(id).contains(event.pos())) continue;
        return QToolTip::showText(event.globalPos(), onLines(sentenceOf(store_, id)), this,
                                  placeOf(id));
    }
    QToolTip::hideText();
}

// Part by part: to copy within a clip of many rectangles is slow.
void Page::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        paint(painter, part);
    }
}

void Page::paint(QPainter& painter, const QRect& part) {
    const auto drawGround = [this](QPainter& onto) {
        for (const Layer& layer : layers_) {
            if (layer.isOnGround) layer.painted->paint(onto);
        }
    };
    ground_.paint(painter, rect(), {[this] { return settleGround(); }, drawGround, Palette::kPage});
    for (const Layer& layer : layers_) {
        if (layer.isOnGround || !part.intersects(layer.ink)) continue;
        if (layer.painted->isShown()) paint(painter, layer);
    }
}

void Page::paint(QPainter& painter, const Layer& layer) {
    if (!layer.fade.isValid()) return layer.painted->paint(painter);
    layer.painted->paintFading(painter, qMin(1.0, double(layer.fade.elapsed()) / kFadeTime));
}

// What lies over something that isn't on the ground isn't either.
QString Page::settleGround() {
    QRegion above;
    QString key = QString("page %1 %2 ").arg(tab_).arg(scale_.zoom());
    for (Layer& layer : layers_) {
        if (layer.ink.isNull()) {
            layer.ink = layer.painted->ink();
            layer.isLit = layer.painted->isLampLit();
        }
        layer.isOnGround &= isForGround(*layer.painted) && !above.intersects(layer.painted->core());
        if (!layer.isOnGround) above += layer.ink;
        key += QChar(layer.isOnGround ? '+' : '-');
    }
    return key;
}

}  // namespace Orvo::Window
