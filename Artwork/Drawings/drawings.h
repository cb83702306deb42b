#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QRectF>

class QPainter;

/// The panel's pictures, as drawings: the window paints them at any size, and the files in
/// Artwork/Pictures are made from them.
namespace Orvo::Artwork {

struct Drawing {
    QRectF place;  ///< what `draw` fills, in units of its own
    void (*draw)(QPainter& painter) = nullptr;
};

// The pictures behind a tab's widgets, in twips of the tab control. They carry no information of
// their own, but every caption stands on them: what is light or dark follows the captions' colours.
extern const Drawing kCommonTab;
extern const Drawing kPairTab;

/// What everything on a tab stands on: from the top over the middle to the bottom.
struct Ground {
    QColor top;
    QColor middle;
    QColor bottom;
};
constexpr Ground kCommonGround{{233, 235, 239}, {222, 225, 231}, {203, 208, 216}};
constexpr Ground kPairGround{{36, 43, 55}, {29, 35, 45}, {20, 24, 32}};

/// The ground of the tab at this place, in any units.
QLinearGradient groundOf(const Ground& ground, const QRectF& place);

// The button of a pair's power, in pixels.
extern const Drawing kPowerUp;
extern const Drawing kPowerDown;

// What stands for the program on a desktop, and for the component in a designer's toolbox.
extern const Drawing kEmblem;
extern const Drawing kToolbox;

/// Stretches the drawing to a rectangle of the painter.
void paint(QPainter& painter, const Drawing& drawing, const QRectF& where);

}  // namespace Orvo::Artwork
