#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

#include "Artwork/Drawings/drawings.h"
#include "Orvo/layout/roles.h"

class QPainter;

// What the drawings of the tabs are made of.
namespace Orvo::Artwork {

constexpr double kPixel = Layout::kTwipsPerPixel;

/// A widget's place on its tab.
constexpr QRectF placeOf(Layout::WidgetId widget) {
    const auto& place = Layout::describe(widget).place;
    return {double(place.left), double(place.top), double(place.width), double(place.height)};
}

/// A surface and the light on it, which comes from above.
struct Finish {
    QColor top;
    QColor bottom;
    QColor edge;
    QColor gleam;   ///< along the upper edge
    QColor shadow;  ///< below
};

/// Onto the middle of the pixels at zoom 1, where an edge is sharp.
void alignToPixels(QPainter& painter);

/// The ground that everything stands on.
void drawGround(QPainter& painter, const QRectF& place, const Ground& ground);

/// A sheet that lies on the ground.
void drawPlate(QPainter& painter, const QRectF& place, const Finish& finish);

/// A hollow in a sheet, for a display or a group of controls.
void drawRecess(QPainter& painter, const QRectF& place, QColor fill, QColor edge);

/// A period of a wave from the left to the right; it turns at half of the swing from the middle.
QPainterPath waveThrough(const QRectF& place, double swing);

/// A recess for the frame that holds a widget: in the frame's own colour, this much larger all
/// round.
void drawRecessAround(QPainter& painter, Layout::WidgetId held, QColor edge, QMarginsF margins);

}  // namespace Orvo::Artwork
