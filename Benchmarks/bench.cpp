#include "bench.h"

#include "Orvo/window/drawing/scale.h"
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

QRect placeOf(Widgets::WidgetId id) { return Window::Scale(1).rect(id); }

}  // namespace Orvo::Benchmarks
