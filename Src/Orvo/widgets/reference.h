#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "Orvo/values/error.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/kind.h"

namespace Orvo::Widgets {

/// A widget's number: its index in the layout's table.
using WidgetId = std::uint16_t;

/// A widget whose kind the compiler knows. The layout's roles are made of these.
template <Kind kKind>
struct Ref {
    WidgetId id = 0;

    // NOLINTNEXTLINE(google-explicit-constructor): it does wherever any widget does
    constexpr operator WidgetId() const { return id; }
    friend constexpr bool operator==(Ref, Ref) = default;
};

/// The widgets that share one name, addressed by index from 0.
template <Kind kKind>
struct ArrayRef {
    std::array<WidgetId, 10> ids{};
    std::size_t count = 0;

    /// Error 340 when the array has no such element.
    [[nodiscard]] constexpr Ref<kKind> at(Integer index) const {
        const auto element = static_cast<std::size_t>(index);
        if (index < 0 || element >= count) throw Errors::noSuchElement(index);
        return {ids[element]};
    }
};

using LabelRef = Ref<Kind::label>;
using ShapeRef = Ref<Kind::shape>;
using LineRef = Ref<Kind::line>;
using ButtonRef = Ref<Kind::button>;
using OptionRef = Ref<Kind::option>;
using CheckRef = Ref<Kind::check>;
using ComboRef = Ref<Kind::combo>;
using ListRef = Ref<Kind::list>;
using PictureRef = Ref<Kind::picture>;
using TimerRef = Ref<Kind::timer>;
using TabsRef = Ref<Kind::tabs>;
using DigitRef = Ref<Kind::digit>;
using SliderRef = Ref<Kind::slider>;

using LabelArrayRef = ArrayRef<Kind::label>;
using LineArrayRef = ArrayRef<Kind::line>;

}  // namespace Orvo::Widgets
