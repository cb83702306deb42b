#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "Orvo/layout/layout.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Runtime {

/// All widgets of a kind, side by side.
template <Kind kKind>
class StoredWidgets {
    using Stored = StoredKinds::Of<kKind>;
    static constexpr auto& kIds = Layout::kAll<kKind>;

public:
    explicit StoredWidgets(Store& store)
        : StoredWidgets(store, std::make_index_sequence<kIds.size()>()) {}

    template <class Use>
    void forEach(const Use& use) {
        for (Stored& widget : widgets_) use(widget);
    }

private:
    template <std::size_t... kIndex>
    StoredWidgets(Store& store, std::index_sequence<kIndex...> /*of kIds*/)
        : widgets_{Stored(store, kIds[kIndex])...} {}

    std::array<Stored, kIds.size()> widgets_;
};

template <class Kinds>
class BlockOf;

/// All widgets of a panel in one block of memory: to allocate each by itself takes as long as all
/// the rest of a panel.
template <std::size_t... kKind>
class BlockOf<std::index_sequence<kKind...>> : StoredWidgets<static_cast<Kind>(kKind)>... {
    template <std::size_t kNumber>
    using Of = StoredWidgets<static_cast<Kind>(kNumber)>;

public:
    explicit BlockOf(Store& store) : Of<kKind>(store)... {
        const auto enter = [this](auto& widget) {
            widgets_[widget.id()] = &widget;
            interfaces_[widget.id()] = &widget;
        };
        (Of<kKind>::forEach(enter), ...);
    }

    [[nodiscard]] StoredWidget& operator[](WidgetId id) const { return *widgets_[id]; }
    [[nodiscard]] Widgets::Widget& interfaceOf(WidgetId id) const { return *interfaces_[id]; }

private:
    std::array<StoredWidget*, Layout::kWidgetCount> widgets_{};
    std::array<Widgets::Widget*, Layout::kWidgetCount> interfaces_{};
};

using WidgetBlock = BlockOf<std::make_index_sequence<Widgets::kKinds.size()>>;

}  // namespace Orvo::Runtime
