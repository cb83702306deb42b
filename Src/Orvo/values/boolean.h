#pragma once

#include <concepts>

#include "Orvo/values/types.h"

namespace Orvo {

/// The interface's 16-bit truth value: true is -1, false is 0, and every other value that a host
/// passes is kept as it is. Whoever tests one treats any non-zero value as true.
///
/// A C++ `bool` becomes -1 or 0; a raw 16-bit value is written `Boolean(Integer{1})`.
class Boolean {
public:
    constexpr Boolean() = default;

    template <std::same_as<bool> Truth>
    constexpr Boolean(Truth truth)  // NOLINT(google-explicit-constructor): panel.ReadOnly(true)
        : raw_(truth ? Integer{-1} : Integer{0}) {}

    constexpr explicit Boolean(Integer raw) : raw_(raw) {}

    [[nodiscard]] constexpr Integer raw() const { return raw_; }
    constexpr explicit operator bool() const { return raw_ != 0; }

    /// The bitwise complement of all 16 bits: only -1 becomes false.
    constexpr Boolean operator~() const { return Boolean(static_cast<Integer>(~raw_)); }

    /// Equal when all 16 bits are; -1 and 1 are both true, but not equal.
    friend constexpr bool operator==(Boolean, Boolean) = default;

private:
    Integer raw_ = 0;
};

}  // namespace Orvo
