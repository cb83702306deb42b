#pragma once

#include "Orvo/widgets/reference.h"

namespace Orvo::Runtime {

/// What shows a store.
class Screen {
public:
    virtual ~Screen() = default;
    /// What this widget shows may have changed. Called from within the panel's writes: note it and
    /// paint later.
    virtual void changed(Widgets::WidgetId widget) = 0;
    /// The mouse pointer has changed.
    virtual void pointerChanged() = 0;
};

}  // namespace Orvo::Runtime
