#pragma once

#include <span>

#include <QPolygonF>

#include "Orvo/widgets/widgets.h"

namespace Orvo::Window {

/// The points of a trace, multiplied by `across` and `down`. Of points in a row that share a pixel
/// column only the first, the lowest, the highest and the last are kept, in their order: they draw
/// the same picture.
QPolygonF traceOnScreen(std::span<const Widgets::Point> points, double across, double down);

}  // namespace Orvo::Window
