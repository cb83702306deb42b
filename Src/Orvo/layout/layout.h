#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>

#include "Orvo/layout/common_tab.h"
#include "Orvo/layout/pair_tab.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/reference.h"

// The whole widget tree as one table, and the references into it.
namespace Orvo::Layout {

using Widgets::WidgetId;

constexpr WidgetId kPanel = 0xFFFF;   // the panel itself, which contains the first widget
constexpr int kTimerInterval = 1500;  // milliseconds

/// One widget as it is laid out.
struct Widget {
    std::string_view name;
    Style style{};
    std::u16string_view caption;
    Place place;
    WidgetId container = kPanel;
    int tab = 0;  ///< the container's tab that it belongs to, from 0
};

constexpr std::size_t kWidgetCount = [] {
    std::size_t twins = kPairWidgets.size() + 5 * kRoutes.size();
    for (const TwinSection& section : kTwinSections) twins += section.rows.size();
    return 1 + kCommonWidgets.size() + 2 * twins + kVolumeFrames.size() * kVolumeBlock.size() +
           kRailFrames.size() * kRailReadout.size();
}();

namespace Detail {

enum Pair : std::size_t { pair12, pair34 };

constexpr int either(int differing, int same) { return differing == kSame ? same : differing; }

constexpr Place twinPlace(const TwinRow& row) {
    const Place& differs = row.other.differs;
    return {either(differs.left, row.place.left), either(differs.top, row.place.top),
            either(differs.width, row.place.width), either(differs.height, row.place.height)};
}

class Expansion {
public:
    constexpr Expansion() {
        add(kRoot.name, kRoot.style, kRoot.caption, kRoot.place, kPanel, 0);
        for (const Row& row : kCommonWidgets)
            addToTab(kCommonTab, row.name, row.style, row.caption, row.place);
        for (const Pair pair : {pair12, pair34}) addPairTab(pair);
    }

    [[nodiscard]] constexpr const auto& widgets() const { return widgets_; }

private:
    constexpr void add(std::string_view name, const Style& style, std::u16string_view caption,
                       const Place& place, WidgetId container, int tab) {
        widgets_[count_++] = {name, style, caption, place, container, tab};
    }

    constexpr void addToTab(int tab, std::string_view name, const Style& style,
                            std::u16string_view caption, const Place& place) {
        add(name, style, caption, place, 0, tab);
    }

    constexpr void addTwin(Pair pair, const TwinRow& row, WidgetId container, int tab) {
        if (pair == pair12)
            return add(row.pair12, row.style, row.caption, row.place, container, tab);
        const auto caption = row.other.itsCaption.empty() ? row.caption : row.other.itsCaption;
        add(row.pair34, row.style, caption, twinPlace(row), container, tab);
    }

    constexpr void addPairTab(Pair pair) {
        const int tab = pair == pair12 ? kFirstPairTab : kSecondPairTab;
        for (const TwinRow& row : kPairWidgets) {
            addTwin(pair, row, 0, tab);
            addContents(pair, widgets_[count_ - 1].name, static_cast<WidgetId>(count_ - 1));
        }
        for (const RouteRow& route : kRoutes) addRoute(pair, route, tab);
    }

    constexpr void addRoute(Pair pair, const RouteRow& route, int tab) {
        for (std::size_t i = 0; i < route.segments.size(); ++i) {
            Place place = route.segments[i];
            if (pair == pair34 && i == 0) place.width = either(route.pair34End, place.width);
            addToTab(tab, pair == pair12 ? route.pair12[i] : route.pair34[i], line, u"", place);
        }
    }

    constexpr void addContents(Pair pair, std::string_view name, WidgetId container) {
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
            add(row.channels[channel], row.style, row.caption, place, container, 0);
        }
    }

    constexpr void addRailReadout(std::size_t rail, WidgetId container) {
        const bool isAux = rail % 2 == 1;
        for (const RailRow& row : kRailReadout) {
            add(row.rails[rail], row.style, isAux ? row.auxCaption : row.powerCaption, row.place,
                container, 0);
        }
    }

    std::array<Widget, kWidgetCount> widgets_{};
    std::size_t count_ = 0;
};

}  // namespace Detail

/// Every widget: the tab control, then each tab from back to front, a container before what it
/// holds. The order is also that of the keyboard focus.
inline constexpr std::array<Widget, kWidgetCount> kWidgets = Detail::Expansion().widgets();

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

/// A reference by name; a name that the layout doesn't have, or has with another kind, doesn't
/// compile.
template <Kind kKind>
consteval Widgets::Ref<kKind> find(std::string_view name) {
    const WidgetId id = findWidget(name).value();
    if (describe(id).style.kind != kKind) throw "the widget is of another kind";
    return {id};
}

template <Kind kKind>
consteval Widgets::ArrayRef<kKind> findArray(std::string_view name) {
    Widgets::ArrayRef<kKind> array;
    for (std::size_t i = 0; i < kWidgets.size(); ++i) {
        const std::string_view whole = kWidgets[i].name;
        if (!whole.starts_with(name) || !whole.substr(name.size()).starts_with('(')) continue;
        if (kWidgets[i].style.kind != kKind) throw "the widget array is of another kind";
        array.ids[static_cast<std::size_t>(whole[name.size() + 1] - '0')] =
            static_cast<WidgetId>(i);
        ++array.count;
    }
    if (array.count == 0) throw "no widget array of this name";
    return array;
}

consteval auto labelRef(std::string_view name) { return find<Kind::label>(name); }
consteval auto shapeRef(std::string_view name) { return find<Kind::shape>(name); }
consteval auto lineRef(std::string_view name) { return find<Kind::line>(name); }
consteval auto buttonRef(std::string_view name) { return find<Kind::button>(name); }
consteval auto optionRef(std::string_view name) { return find<Kind::option>(name); }
consteval auto checkRef(std::string_view name) { return find<Kind::check>(name); }
consteval auto comboRef(std::string_view name) { return find<Kind::combo>(name); }
consteval auto listRef(std::string_view name) { return find<Kind::list>(name); }
consteval auto pictureRef(std::string_view name) { return find<Kind::picture>(name); }
consteval auto timerRef(std::string_view name) { return find<Kind::timer>(name); }
consteval auto tabsRef(std::string_view name) { return find<Kind::tabs>(name); }
consteval auto digitRef(std::string_view name) { return find<Kind::digit>(name); }
consteval auto sliderRef(std::string_view name) { return find<Kind::slider>(name); }

consteval auto labelArray(std::string_view name) { return findArray<Kind::label>(name); }
consteval auto lineArray(std::string_view name) { return findArray<Kind::line>(name); }
consteval auto digitArray(std::string_view name) { return findArray<Kind::digit>(name); }

inline constexpr Widgets::TabsRef kTabs = tabsRef("SSTab1");

}  // namespace Orvo::Layout
