#pragma once

#include <QColor>

// How well one colour is told from another, as in "Web Content Accessibility Guidelines 2.1".
namespace Orvo::Window {

/// What a text needs, and what a shape needs.
constexpr double kTextContrast = 4.5;
constexpr double kShapeContrast = 3;

/// The part of the light, 0 to 1, that an sRGB channel of 0 to 255 stands for.
double lightOf(int channel);

/// From 0 for black to 1 for white.
double luminanceOf(QColor colour);

/// From 1 for two that are equally bright to 21 for black and white.
double contrastBetween(double luminance, double other);
double contrastOf(QColor one, QColor other);

}  // namespace Orvo::Window
