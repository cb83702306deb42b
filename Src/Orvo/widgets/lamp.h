#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo::Widgets {

/// A lamp's state is its shape's fill style and nothing else: solid is lit.
constexpr bool isLit(FillStyle style) { return style == FillStyle::solid; }

inline void light(Shape& lamp, Boolean lit) {
    lamp.setFillStyle(bool(lit) ? FillStyle::solid : FillStyle::transparent);
}

inline Boolean isLit(const Shape& lamp) { return {isLit(lamp.fillStyle())}; }

}  // namespace Orvo::Widgets
