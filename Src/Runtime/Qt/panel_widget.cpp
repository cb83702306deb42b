#include "Runtime/Qt/panel_widget.h"

#include "Orvo/core/marvane_assistant.h"
#include "Runtime/Qt/front.h"
#include "Runtime/Store/store.h"

namespace Orvo::Window {

// In the order of their making: the screen sees start-up.
struct PanelWidget::Parts {
    Parts(const Platform& platform, QWidget* parent, Clock clock)
        : front(store, parent, clock), panel(store, platform) {}

    std::shared_ptr<Runtime::Store> store = Runtime::Store::create();
    Front front;
    MarvaneAssistant panel;
};

PanelWidget::PanelWidget(QWidget* parent) : PanelWidget(Platform{}, parent) {}

PanelWidget::PanelWidget(const Platform& platform, QWidget* parent, Clock clock)
    : QWidget(parent), parts_(std::make_unique<Parts>(platform, this, clock)) {
    setMinimumSize(parts_->front.size());
    flush();
}

PanelWidget::~PanelWidget() = default;

MarvaneAssistant& PanelWidget::panel() const { return parts_->panel; }
Runtime::Store& PanelWidget::store() const { return *parts_->store; }
double PanelWidget::zoom() const { return parts_->front.zoom(); }

void PanelWidget::setZoom(double zoom) {
    constexpr double kSmallest = 0.5;
    constexpr double kLargest = 8;
    parts_->front.setZoom(qBound(kSmallest, zoom, kLargest));
    setMinimumSize(parts_->front.size());
    updateGeometry();
    centre();
}

QSize PanelWidget::sizeHint() const { return parts_->front.size(); }
QSize PanelWidget::minimumSizeHint() const { return sizeHint(); }

void PanelWidget::flush() { parts_->front.flush(); }

void PanelWidget::resizeEvent(QResizeEvent*) { centre(); }

void PanelWidget::centre() {
    const QSize spare = (size() - parts_->front.size()).expandedTo({0, 0}) / 2;
    parts_->front.move(spare.width(), spare.height());
}

}  // namespace Orvo::Window
