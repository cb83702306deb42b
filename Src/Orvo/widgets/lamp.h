#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widgets.h"

namespace Orvo::Widgets {

/// A lamp's state is its shape's fill style and nothing else: solid is lit.
inline void light(Shape& lamp, Boolean lit) {
    lamp.setFillStyle(bool(lit) ? FillStyle::solid : FillStyle::transparent);
}

inline Boolean isLit(const Shape& lamp) { return {lamp.fillStyle() == FillStyle::solid}; }

}  // namespace Orvo::Widgets
