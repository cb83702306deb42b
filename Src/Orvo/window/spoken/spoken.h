#pragma once

#include <optional>

#include <QString>

#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"

// What the named widgets say, in words. A lamp says "lit" or "dark", a readout "-42 V", a result
// "PASS", a slider "-10 dB", a scope "12.4 V peak, 2.5 cycles across".
namespace Orvo::Window {

using Widgets::WidgetId;

/// Empty for widgets that have no state to tell, such as buttons.
QString valueOf(const Runtime::Store& store, WidgetId id);

/// The number on a readout, and what a slider's position stands for.
std::optional<int> numberOf(const Runtime::Store& store, WidgetId id);

/// "Protection channel 1: lit"; the name alone where there is no value.
QString sentenceOf(const Runtime::Store& store, WidgetId id);

/// The readout that a digit or a sign belongs to; null for anything else.
const Layout::Readout* readoutWith(WidgetId part);

/// The widget that speaks for this one: for a readout's sign and digits the first digit, else the
/// widget itself.
WidgetId speakerOf(WidgetId id);

/// What a slider's position stands for: a volume in dB, or a temperature.
int measureAt(WidgetId slider, int position);
/// The position, within the slider's bounds, that is nearest to a measure.
int positionAt(const Runtime::Store& store, WidgetId slider, double measure);

}  // namespace Orvo::Window
