#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QWidget;

// What the drawn controls have in common.
namespace Orvo::Window {

enum class Face { raised, sunken };

/// A button's body. `zoom` sizes its edges.
void drawFace(QPainter& painter, const QRectF& place, QColor colour, Face face, double zoom);

/// The frame around what has the keyboard focus; nothing when it hasn't.
void drawFocus(QPainter& painter, const QWidget& widget, double zoom);

/// The same for what is round.
void drawRoundFocus(QPainter& painter, const QWidget& widget, double zoom);

}  // namespace Orvo::Window
