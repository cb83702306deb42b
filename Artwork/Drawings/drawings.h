#pragma once

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

// The button of a pair's power, in pixels.
extern const Drawing kPowerUp;
extern const Drawing kPowerDown;

// What stands for the program on a desktop, and for the component in a designer's toolbox.
extern const Drawing kEmblem;
extern const Drawing kToolbox;

/// Stretches the drawing to a rectangle of the painter.
void paint(QPainter& painter, const Drawing& drawing, const QRectF& where);

}  // namespace Orvo::Artwork
