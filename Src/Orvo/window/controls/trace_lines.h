#pragma once

#include <span>

#include <QLine>
#include <QList>

#include "Orvo/widgets/widgets.h"

class QPainter;

namespace Orvo::Window {

/// The lines that show a trace whose x never decreases, in device pixels: `across` and `down` are
/// device pixels for one unit of the surface.
///
/// Drawn opaque and one pixel wide they cover exactly the pixels that a line for every segment
/// would. Of the segments within a pixel column only the stretch that they cover together is left,
/// so there are at most two lines for each column, however many samples the trace has.
QList<QLine> traceLines(std::span<const Widgets::Point> points, double across, double down);

/// Draws lines in the painter's colour, as squares of this many pixels in a row.
void drawLines(QPainter& painter, const QList<QLine>& lines, int thickness);

}  // namespace Orvo::Window
