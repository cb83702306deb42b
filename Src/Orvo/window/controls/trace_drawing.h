#pragma once

#include <QImage>

#include "Orvo/widgets/trace.h"

namespace Orvo::Window {

/// A picture of 32 bits a pixel, and how many of its pixels one unit of what it shows takes.
struct Canvas {
    QImage& picture;
    double across = 1;
    double down = 1;

    /// How thick a line of one unit is, in whole pixels.
    [[nodiscard]] int thickness() const;
};

/// Draws a trace, opaque and a unit thick: the pixels that a line of the toolkit's for each segment
/// would cover.
void drawTrace(const Canvas& canvas, const Widgets::Trace& trace);

}  // namespace Orvo::Window
