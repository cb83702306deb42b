#pragma once

#include <optional>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

// What a store shows, where it takes more than one widget or a widget's state to say.
namespace Orvo::Runtime {

inline bool isLit(const Store& store, Widgets::WidgetId lamp) {
    return store.get<StoredShape>(lamp).state().isLit();
}

/// The number on a readout's digits, whatever its sign; none while one of them shows nothing.
inline std::optional<int> magnitudeOn(const Store& store, const Layout::Readout& readout) {
    int number = 0;
    for (const Widgets::WidgetId place : readout.digits()) {
        const auto digit = store.get<StoredDigit>(place).state().digit;
        if (!digit) return std::nullopt;
        number = 10 * number + *digit;
    }
    return number;
}

}  // namespace Orvo::Runtime
