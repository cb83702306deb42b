#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "Orvo/layout/common_tab.h"
#include "Orvo/layout/pair_tab.h"
#include "Orvo/widgets/reference.h"

// The whole widget tree as one table, and the references into it.
namespace Orvo::Layout {

using Widgets::WidgetId;

constexpr WidgetId kPanel = 0xFFFF;   // the panel itself, which contains the first widget
constexpr int kTimerInterval = 1500;  // milliseconds

/// One widget as it is laid out.
struct Widget : Row {
    WidgetId container = kPanel;
    int tab = 0;  ///< the container's tab that it belongs to, from 0
};

constexpr std::size_t kWidgetCount = [] {
    std::size_t twins = kPairWidgets.size() + 5 * kRoutes.size();
    for (const TwinSection& section : kTwinSections) twins += section.rows.size();
    return 1 + kCommonWidgets.size() + 2 * twins + kVolumeFrames.size() * kVolumeBlock.size() +
           kRailFrames.size() * kRailReadout.size();
}();

namespace Internal {

enum PairTab : std::size_t { pair12, pair34 };

constexpr int either(int differing, int same) { return differing == kSame ? same : differing; }

constexpr Place twinPlace(const TwinRow& row) {
    const Place& differs = row.other.differs;
    return {either(differs.left, row.place.left), either(differs.top, row.place.top),
            either(differs.width, row.place.width), either(differs.height, row.place.height)};
}

class Expansion {
public:
    constexpr Expansion() {
        add(kRoot, kPanel, 0);
        for (const Row& row : kCommonWidgets) add(row, 0, kCommonTab);
        for (const PairTab pair : {pair12, pair34}) addPairTab(pair);
    }

    [[nodiscard]] constexpr const auto& widgets() const { return widgets_; }

private:
    constexpr void add(const Row& row, WidgetId container, int tab) {
        widgets_[count_++] = {row, container, tab};
    }

    constexpr void addTwin(PairTab pair, const TwinRow& row, WidgetId container, int tab) {
        if (pair == pair12)
            return add({row.pair12, row.style, row.caption, row.place}, container, tab);
        const auto caption = row.other.itsCaption.empty() ? row.caption : row.other.itsCaption;
        add({row.pair34, row.style, caption, twinPlace(row)}, container, tab);
    }

    constexpr void addPairTab(PairTab pair) {
        const int tab = pair == pair12 ? kFirstPairTab : kSecondPairTab;
        for (const TwinRow& row : kPairWidgets) {
            addTwin(pair, row, 0, tab);
            addContents(pair, widgets_[count_ - 1].name, static_cast<WidgetId>(count_ - 1));
        }
        for (const RouteRow& route : kRoutes) addRoute(pair, route, tab);
    }

    constexpr void addRoute(PairTab pair, const RouteRow& route, int tab) {
        for (std::size_t i = 0; i < route.segments.size(); ++i) {
            Place place = route.segments[i];
            if (pair == pair34 && i == 0) place.width = either(route.pair34End, place.width);
            add({pair == pair12 ? route.pair12[i] : route.pair34[i], line, u"", place}, 0, tab);
        }
    }

    constexpr void addContents(PairTab pair, std::string_view name, WidgetId container) {
        for (const TwinSection& section : kTwinSections) {
            if (section.containers[pair] != name) continue;
            for (const TwinRow& row : section.rows) addTwin(pair, row, container, 0);
        }
        for (std::size_t i = 0; i < kVolumeFrames.size(); ++i) {
            if (kVolumeFrames[i] == name) addVolumeBlock(i, container);
        }
        for (std::size_t i = 0; i < kRailFrames.size(); ++i) {
            if (kRailFrames[i] == name) addRailReadout(i, container);
        }
    }

    constexpr void addVolumeBlock(std::size_t channel, WidgetId container) {
        const bool isLower = channel % 2 == 1;
        for (const VolumeRow& row : kVolumeBlock) {
            Place place = row.place;
            if (isLower) place.left -= row.lowerLeft;
            if (isLower) place.top += kLowerBlockDrop;
            add({row.channels[channel], row.style, row.caption, place}, container, 0);
        }
    }

    constexpr void addRailReadout(std::size_t rail, WidgetId container) {
        const bool isAux = rail % 2 == 1;
        for (const RailRow& row : kRailReadout) {
            const auto caption = isAux ? row.auxCaption : row.powerCaption;
            add({row.rails[rail], row.style, caption, row.place}, container, 0);
        }
    }

    std::array<Widget, kWidgetCount> widgets_{};
    std::size_t count_ = 0;
};

}  // namespace Internal

/// Every widget: the tab control, then each tab from back to front, a container before what it
/// holds. The order is also that of the keyboard focus.
inline constexpr std::array<Widget, kWidgetCount> kWidgets = Internal::Expansion().widgets();

constexpr const Widget& describe(WidgetId id) { return kWidgets[id]; }
constexpr Kind kindOf(WidgetId id) { return describe(id).style.kind; }

/// Whether two widgets are of one kind and in one container, as the options of a group are.
constexpr bool areFellows(WidgetId one, WidgetId other) {
    return kindOf(one) == kindOf(other) && describe(one).container == describe(other).container;
}

/// All widgets of a kind, in order.
template <Kind kKind>
inline constexpr auto kAll = [] {
    constexpr auto isOne = [](const Widget& widget) { return widget.style.kind == kKind; };
    std::array<WidgetId, std::count_if(kWidgets.begin(), kWidgets.end(), isOne)> all{};
    for (std::size_t i = 0, id = 0; i < all.size(); ++id) {
        if (isOne(kWidgets[id])) all[i++] = static_cast<WidgetId>(id);
    }
    return all;
}();

/// The widget of this name, "NAME(INDEX)" for an element of a widget array.
constexpr std::optional<WidgetId> findWidget(std::string_view name) {
    for (std::size_t i = 0; i < kWidgets.size(); ++i) {
        if (kWidgets[i].name == name) return static_cast<WidgetId>(i);
    }
    return std::nullopt;
}

/// What holds everything.
inline constexpr Widgets::TabsRef kTabs{0};

}  // namespace Orvo::Layout
