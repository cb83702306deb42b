#pragma once

#include <memory>

#include <QWidget>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"
#include "Orvo/window/panel_widget.h"

// What is measured.
namespace Orvo::Benchmarks {

/// A panel without a window.
struct Bench {
    std::shared_ptr<Runtime::Store> store = Runtime::Store::create();
    MarvaneAssistant panel{store};
};

inline std::unique_ptr<Bench> makeBench() { return std::make_unique<Bench>(); }

/// A panel in a window, with that tab in front.
std::unique_ptr<Window::PanelWidget> makePanel(Integer tab);

/// Brings what a panel has changed to its window's picture.
void bringToPicture(Window::PanelWidget& panel);

/// Where a widget lies on the panel.
QRect placeOf(Widgets::WidgetId id);

}  // namespace Orvo::Benchmarks
