#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "Orvo/export.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// An array of Integer with its own bounds and any number of dimensions, none included.
///
/// Elements are stored with the first index running fastest.
class ORVO_EXPORT IntegerArray {
public:
    /// The lowest and the highest index of one dimension; empty when upper is lower - 1.
    struct Bounds {
        Long lower = 0;
        Long upper = -1;

        friend constexpr bool operator==(const Bounds&, const Bounds&) = default;
    };

    /// An array that has not been sized yet: no dimension.
    IntegerArray() = default;

    /// One dimension, its first index being `lower`.
    /// Error 5 when the highest index would not fit a Long.
    IntegerArray(Long lower, std::vector<Integer> elements);

    /// Any dimensions, all elements 0.
    /// Error 5 when an upper bound lies below its lower bound - 1, error 6 when the number of
    /// elements is above 2^31 - 1.
    explicit IntegerArray(std::vector<Bounds> dimensions);

    [[nodiscard]] std::size_t dimensionCount() const { return dimensions_.size(); }

    /// The bounds of a dimension, counted from 1. Error 9 when the array has no such dimension.
    [[nodiscard]] Bounds bounds(std::size_t dimension = 1) const;

    /// All elements, in storage order.
    [[nodiscard]] std::span<const Integer> elements() const { return elements_; }
    [[nodiscard]] std::span<Integer> elements() { return elements_; }

    /// Those from an index on; none when the array has not exactly one dimension, or one that
    /// begins above that index.
    [[nodiscard]] std::span<const Integer> elementsFrom(Long index) const;

    friend bool operator==(const IntegerArray&, const IntegerArray&) = default;

private:
    std::vector<Bounds> dimensions_;
    std::vector<Integer> elements_;
};

}  // namespace Orvo
