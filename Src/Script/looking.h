#pragma once

#include <string>

#include "Orvo/store/store.h"
#include "Script/argument_types.h"

// The commands that look at the panel or change its layout. Each function returns its closing
// line.
namespace Orvo::Script::Looking {

/// A widget as `show` prints it.
std::string describe(const Runtime::Store& widgets, WidgetId widget);

std::string show(Session& session, const Shown& widget);
std::string items(Session& session, const ItemHolder& widget);
std::string drawing(Session& session, const Picture& picture);
std::string widgets(Session& session);
std::string pointer(Session& session, const PointerNumber& number);
std::string set(Session& session, const AnyWidget& widget, const LayoutProperty& property,
                const Truth& value);
std::string shot(Session& session, const File& file);
std::string quit(Session& session);

}  // namespace Orvo::Script::Looking
