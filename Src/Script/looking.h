#pragma once

#include <string>

#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Script/argument_types.h"

// The commands that look at the panel or change its layout. Each function returns its closing
// line, unless that is always the same.
namespace Orvo::Script::Looking {

/// A widget as `show` prints it.
std::string describe(const Runtime::Store& widgets, WidgetId widget);

std::string show(const Session& session, std::optional<WidgetId> widget);
std::string items(const Session& session, WidgetId widget);
std::string drawing(const Session& session, WidgetId picture);
std::string widgets(const Session& session);
void set(Session& session, WidgetId widget, LayoutProperty property, bool value);
void pointer(Session& session, Widgets::Pointer pointer);

}  // namespace Orvo::Script::Looking
