#pragma once

#include "Orvo/layout/style.h"

class QPainter;

namespace Orvo::Window {

/// Draws the picture behind a tab's widgets, in twips of the tab. It carries no information of its
/// own, but every caption stands on it: what is light or dark here follows their colours.
void drawArtwork(QPainter& painter, Layout::Image image);

}  // namespace Orvo::Window
