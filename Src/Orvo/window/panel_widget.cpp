#include "Orvo/window/panel_widget.h"

#include <optional>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Orvo/window/panel_screen.h"

namespace Orvo::Window {

struct PanelWidget::Parts {
    // In this order: the screen sees start-up.
    void make(QWidget* parent) {
        store = Runtime::Store::create();
        screen = std::make_unique<PanelScreen>(store, parent, clock);
        panel.emplace(store, platform);
    }

    // The panel's object stays where hosts know it.
    void takeTurns(Parts& other) noexcept {
        panel->swap(*other.panel);
        screen.swap(other.screen);
        store.swap(other.store);
    }

    const Platform platform;
    const Clock clock;
    std::shared_ptr<Runtime::Store> store{};
    std::unique_ptr<PanelScreen> screen{};
    std::optional<MarvaneAssistant> panel{};
};

PanelWidget::PanelWidget(QWidget* parent) : PanelWidget(Platform{}, parent) {}

PanelWidget::PanelWidget(const Platform& platform, QWidget* parent, Clock clock)
    : QWidget(parent), parts_(new Parts{platform, clock}) {
    parts_->make(this);
    setMinimumSize(parts_->screen->size());
    flush();
}

PanelWidget::~PanelWidget() = default;

MarvaneAssistant& PanelWidget::panel() const { return *parts_->panel; }
Runtime::Store& PanelWidget::store() const { return *parts_->store; }
double PanelWidget::zoom() const { return parts_->screen->zoom(); }

void PanelWidget::setZoom(double zoom) {
    constexpr double kSmallest = 0.5;
    constexpr double kLargest = 8;
    parts_->screen->setZoom(qBound(kSmallest, zoom, kLargest));
    setMinimumSize(parts_->screen->size());
    updateGeometry();
    centre();
}

QSize PanelWidget::sizeHint() const { return parts_->screen->size(); }
QSize PanelWidget::minimumSizeHint() const { return sizeHint(); }

void PanelWidget::renew(const std::function<void()>& ending) {
    Parts fresh{parts_->platform, parts_->clock};
    fresh.make(this);
    ending();
    const double before = zoom();
    fresh.takeTurns(*parts_);
    fresh.panel.reset();
    fresh.screen.reset();
    setZoom(before);
    parts_->screen->show();
    flush();
}

QWidget* PanelWidget::control(Widgets::WidgetId widget) const {
    return parts_->screen->control(widget);
}

void PanelWidget::flush() { parts_->screen->flush(); }

void PanelWidget::resizeEvent(QResizeEvent*) { centre(); }

void PanelWidget::centre() {
    const QSize spare = (size() - parts_->screen->size()).expandedTo({0, 0}) / 2;
    parts_->screen->move(spare.width(), spare.height());
}

}  // namespace Orvo::Window
