#include "Orvo/window/drawing/contrast.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Window {

double lightOf(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminanceOf(QColor colour) {
    return 0.2126 * lightOf(colour.red()) + 0.7152 * lightOf(colour.green()) +
           0.0722 * lightOf(colour.blue());
}

double contrastBetween(double luminance, double other) {
    const auto [dark, light] = std::minmax(luminance, other);
    return (light + 0.05) / (dark + 0.05);
}

double contrastOf(QColor one, QColor other) {
    return contrastBetween(luminanceOf(one), luminanceOf(other));
}

}  // namespace Orvo::Window
