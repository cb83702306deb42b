#pragma once

#include <array>
#include <memory>

#include <QWidget>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/layout/layout.h"
#include "Orvo/store/store.h"
#include "Orvo/window/panel_widget.h"

// What is measured, and where on it.
namespace Orvo::Benchmarks {

namespace Places {

inline constexpr auto kScope = Layout::pictureRef("Picture1");
inline constexpr auto kLamp = Layout::shapeRef("Shape22");  // of Signal(1)
// The first and the last digit of VPPower(1).
inline constexpr std::array kRail{Layout::digitRef("LED1"), Layout::digitRef("LED25")};
inline constexpr auto kStartButtons =
    std::to_array({Layout::buttonRef("cmdGo12"), Layout::buttonRef("cmdGo34")});
inline constexpr auto kLog = Layout::listRef("List1");

}  // namespace Places

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

/// The widget that stands for the layout's, and its place.
QWidget& controlOf(const Window::PanelWidget& panel, Widgets::WidgetId id);
QRect placeOf(Widgets::WidgetId id);

}  // namespace Orvo::Benchmarks
