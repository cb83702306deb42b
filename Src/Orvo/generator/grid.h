#pragma once

#include <vector>

#include "Orvo/values/types.h"

namespace Orvo {

/// A mark of the voltage scale: its height on the surface and what it stands for.
struct GridMark {
    Integer y = 0;      ///< pixels from the top
    Integer volts = 0;  ///< 120 at the top mark, 30 less at each one below

    friend constexpr bool operator==(const GridMark&, const GridMark&) = default;
};

/// The marks of a surface of this height in pixels: one every tenth of it, both rounded half to
/// even. None when that tenth rounds to nothing. Error 6 for a height above 32767.
std::vector<GridMark> gridMarks(float height);

/// What a place on the scale of such a surface stands for, and where a voltage lies, downwards;
/// between the marks and beyond them alike. For a surface that has marks.
double voltsAt(double y, float height);
double gridY(double volts, float height);

}  // namespace Orvo
