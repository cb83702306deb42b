#pragma once

#include <array>
#include <cstdint>

#include <QPolygonF>

namespace Orvo::Window {

constexpr int kSegmentCount = 7;

/// The lit segments of the digits 0 to 9, one bit each: top, upper right, lower right, bottom,
/// lower left, upper left, middle.
constexpr std::array<std::uint8_t, 10> kLitSegments{0x3F, 0x06, 0x5B, 0x4F, 0x66,
                                                    0x6D, 0x7D, 0x07, 0x7F, 0x6F};

constexpr bool isLit(int digit, int segment) {
    return (kLitSegments[static_cast<std::size_t>(digit)] >> segment & 1) != 0;
}

constexpr QSizeF kSegmentCell(12, 15);

/// The outline of a segment, in such a cell.
QPolygonF segmentOutline(int segment);

}  // namespace Orvo::Window
