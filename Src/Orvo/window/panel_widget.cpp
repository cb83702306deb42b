#include "Orvo/window/panel_widget.h"

#include <optional>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Orvo/window/front.h"

namespace Orvo::Window {

struct PanelWidget::Parts {
    // In this order: the screen sees start-up.
    void make(QWidget* parent) {
        store = Runtime::Store::create();
        front = std::make_unique<Front>(store, parent, clock);
        panel.emplace(store, platform);
    }

    const Platform platform;
    const Clock clock;
    std::shared_ptr<Runtime::Store> store{};
    std::unique_ptr<Front> front{};
    std::optional<MarvaneAssistant> panel{};
};

PanelWidget::PanelWidget(QWidget* parent) : PanelWidget(Platform{}, parent) {}

PanelWidget::PanelWidget(const Platform& platform, QWidget* parent, Clock clock)
    : QWidget(parent), parts_(new Parts{platform, clock}) {
    parts_->make(this);
    setMinimumSize(parts_->front->size());
    flush();
}

PanelWidget::~PanelWidget() = default;

MarvaneAssistant& PanelWidget::panel() const { return *parts_->panel; }
Runtime::Store& PanelWidget::store() const { return *parts_->store; }
double PanelWidget::zoom() const { return parts_->front->zoom(); }

void PanelWidget::setZoom(double zoom) {
    constexpr double kSmallest = 0.5;
    constexpr double kLargest = 8;
    parts_->front->setZoom(qBound(kSmallest, zoom, kLargest));
    setMinimumSize(parts_->front->size());
    updateGeometry();
    centre();
}

QSize PanelWidget::sizeHint() const { return parts_->front->size(); }
QSize PanelWidget::minimumSizeHint() const { return sizeHint(); }

void PanelWidget::renew() {
    const double before = zoom();
    parts_->panel.reset();
    parts_->front.reset();
    parts_->make(this);
    setZoom(before);
    parts_->front->show();
    flush();
}

void PanelWidget::flush() { parts_->front->flush(); }

void PanelWidget::resizeEvent(QResizeEvent*) { centre(); }

void PanelWidget::centre() {
    const QSize spare = (size() - parts_->front->size()).expandedTo({0, 0}) / 2;
    parts_->front->move(spare.width(), spare.height());
}

}  // namespace Orvo::Window
