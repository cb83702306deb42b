#include "Orvo/window/panel_widget.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include <QPainter>
#include <QPointer>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/drawing/scale.h"
#include "Orvo/window/panel_screen.h"

namespace Orvo::Window {

namespace {

constexpr double kSmallestZoom = 0.5;
constexpr double kLargestZoom = 8;

QSize sizeAt(double zoom) { return Scale(zoom).panelSize(); }

}  // namespace

struct PanelWidget::Parts {
    // In this order: the screen sees start-up.
    void make(PanelWidget& widget) {
        store = Runtime::Store::create();
        screen = std::make_unique<PanelScreen>(store, &widget, clock);
        panel.emplace(store, platform);
        emission = widget.emitEventsOf(*panel);
        // Queued: what is told of may be the end of the widget.
        connect(screen.get(), &PanelScreen::readOnlyWritten, &widget, &PanelWidget::noteReadOnly,
                Qt::QueuedConnection);
    }

    // The panel's object stays where hosts know it.
    void takeTurns(Parts& other) noexcept {
        panel->swap(*other.panel);
        screen.swap(other.screen);
        store.swap(other.store);
        std::swap(emission, other.emission);
    }

    const Platform platform;
    const Clock clock;
    std::shared_ptr<Runtime::Store> store{};
    std::unique_ptr<PanelScreen> screen{};
    std::optional<MarvaneAssistant> panel{};
    Connection emission{};
};

PanelWidget::PanelWidget(QWidget* parent) : PanelWidget(Platform{}, parent) {}

PanelWidget::PanelWidget(const Platform& platform, QWidget* parent, Clock clock)
    : PanelInterface(parent), parts_(new Parts{platform, clock}) {
    parts_->make(*this);
    setMinimumSize(parts_->screen->size());
    flush();
}

PanelWidget::~PanelWidget() = default;

MarvaneAssistant& PanelWidget::panel() const { return *parts_->panel; }
Runtime::Store& PanelWidget::store() const { return *parts_->store; }
double PanelWidget::zoom() const { return parts_->screen->zoom(); }

void PanelWidget::setZoom(double zoom) {
    const double bounded = qBound(kSmallestZoom, zoom, kLargestZoom);
    if (bounded == this->zoom()) return;
    parts_->screen->setZoom(bounded);
    arrange();
    Q_EMIT zoomChanged(bounded);
}

void PanelWidget::setFitsToSize(bool fits) {
    if (std::exchange(fitsToSize_, fits) == fits) return;
    const QPointer<PanelWidget> self = this;
    arrange();
    // A size that nobody has given it yet is none to follow.
    if (fits && (isVisible() || testAttribute(Qt::WA_Resized))) fit();
    if (self) Q_EMIT fitsToSizeChanged(fits);
}

// The read-only mode alone writes this state of the power button's.
bool PanelWidget::isReadOnly() const {
    return !store().widget(Layout::kCommon.powerButton).isEnabled();
}

void PanelWidget::setReadOnly(bool readOnly) {
    const QPointer<PanelWidget> self = this;
    panel().ReadOnly(readOnly);
    if (self) noteReadOnly();
}

void PanelWidget::noteReadOnly() {
    const bool is = isReadOnly();
    if (std::exchange(wasReadOnly_, is) != is) Q_EMIT readOnlyChanged(is);
}

QSize PanelWidget::sizeHint() const { return parts_->screen->size(); }

QSize PanelWidget::minimumSizeHint() const {
    return fitsToSize_ ? sizeAt(kSmallestZoom) : sizeHint();
}

int PanelWidget::heightForWidth(int width) const {
    if (!fitsToSize_) return QWidget::heightForWidth(width);
    const QSizeF plain = sizeAt(1);
    return qCeil(width * plain.height() / plain.width());
}

void PanelWidget::renew(const std::function<void()>& ending) {
    Parts fresh{parts_->platform, parts_->clock};
    fresh.make(*this);
    ending();
    const double before = zoom();
    fresh.takeTurns(*parts_);
    fresh.panel.reset();
    fresh.screen.reset();
    parts_->screen->setZoom(before);
    arrange();
    parts_->screen->show();
    flush();
    noteReadOnly();
}

QWidget* PanelWidget::control(Widgets::WidgetId widget) const {
    return parts_->screen->control(widget);
}

void PanelWidget::flush() { parts_->screen->flush(); }

void PanelWidget::paintEvent(QPaintEvent*) {
    const PanelScreen& screen = *parts_->screen;
    if (size() == screen.size()) return;
    QPainter painter(this);
    painter.translate(screen.pos());
    screen.paintAround(painter, rect().translated(-screen.pos()));
}

void PanelWidget::resizeEvent(QResizeEvent*) {
    centre();
    if (fitsToSize_) fit();
}

void PanelWidget::arrange() {
    setMinimumSize(minimumSizeHint());
    updateGeometry();
    centre();
}

// In thousandths, rounded down: no edge is cut.
void PanelWidget::fit() {
    const QSizeF plain = sizeAt(1);
    const double zoom = std::min(width() / plain.width(), height() / plain.height());
    setZoom(std::floor(zoom * 1000) / 1000);
}

void PanelWidget::centre() {
    parts_->screen->move(std::max(0, (width() - parts_->screen->width()) / 2), 0);
}

}  // namespace Orvo::Window
