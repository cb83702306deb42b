#pragma once

#include <type_traits>

#include "Orvo/widgets/kind.h"

namespace Orvo::Widgets {

/// A row of a KindTable.
template <Kind kKind, class Class>
struct For {};

namespace Internal {

template <class... Rows>
struct All : Rows... {};

template <Kind kKind, class Class>
std::type_identity<Class> find(For<kKind, Class>);

}  // namespace Internal

/// A table from kinds to classes, one row for each kind that has one.
template <class... Rows>
class KindTable;

template <Kind... kKinds, class... Classes>
class KindTable<For<kKinds, Classes>...> {
public:
    template <Kind kKind>
    using Of =
        typename decltype(Internal::find<kKind>(Internal::All<For<kKinds, Classes>...>()))::type;

    /// Whether the other table has a class derived from this one's for each kind.
    template <class Other>
    static constexpr bool kHasBasesOf =
        (std::is_base_of_v<Classes, typename Other::template Of<kKinds>> && ...);

    /// What `use` returns for std::type_identity of the kind's class; an empty value of that type
    /// when the kind has no row.
    template <class Use>
    static auto visit(Kind kind, const Use& use) {
        std::common_type_t<std::invoke_result_t<Use, std::type_identity<Classes>>...> result{};
        static_cast<void>(
            ((kind == kKinds && (result = use(std::type_identity<Classes>()), true)) || ...));
        return result;
    }
};

}  // namespace Orvo::Widgets
