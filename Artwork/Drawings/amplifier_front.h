#pragma once

#include <QRectF>

class QPainter;

namespace Orvo::Artwork {

/// Two rack units, 5.5 times as wide as high, in the tabs' units: the amplifier as it stands in a
/// rack. Nothing on it is lit: it says nothing about the one that is connected.
void drawAmplifierFront(QPainter& painter, const QRectF& place);

}  // namespace Orvo::Artwork
