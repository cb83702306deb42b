#include "bench.h"

#include <stdexcept>

#include "Orvo/window/controls/control.h"
#include "measure.h"

namespace Orvo::Benchmarks {

std::unique_ptr<Window::PanelWidget> makePanel(Integer tab) {
    auto panel = std::make_unique<Window::PanelWidget>();
    panel->store()[Layout::kTabs].setCurrentTab(tab);
    panel->show();
    bringToPicture(*panel);
    return panel;
}

void bringToPicture(Window::PanelWidget& panel) {
    panel.flush();
    paint(panel);
}

QWidget& controlOf(const Window::PanelWidget& panel, Widgets::WidgetId id) {
    for (QWidget* child : panel.findChildren<QWidget*>()) {
        const auto* control = dynamic_cast<Window::Control*>(child);
        if (control != nullptr && control->id() == id) return *child;
    }
    throw std::logic_error("the panel has no control for this widget");
}

QRect placeOf(Widgets::WidgetId id) { return Window::Scale(1).rect(id); }

}  // namespace Orvo::Benchmarks
