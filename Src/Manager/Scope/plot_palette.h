#pragma once

#include <array>

#include "Orvo/window/drawing/palette.h"

// A plot's own colours.
namespace Orvo::Manager::PlotPalette {

/// By channel.
inline constexpr std::array kTraces{QColor(255, 214, 72), QColor(64, 168, 255),
                                    QColor(255, 128, 196), QColor(124, 232, 140)};
constexpr QColor kOldTrace(120, 124, 130);

constexpr QColor kGround(10, 12, 16);
constexpr QColor kGrid(48, 55, 66);
constexpr QColor kAxis(92, 102, 118);
constexpr QColor kText(190, 197, 208);
constexpr QColor kNote = Window::Palette::kWarning;
constexpr QColor kCursor(240, 242, 246);

}  // namespace Orvo::Manager::PlotPalette
