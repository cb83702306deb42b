#pragma once

#include "Orvo/store/shown.h"
#include "Script/store_panel.h"
#include "Support/bench.h"

namespace Orvo::Tests {

/// A panel on the store alone that may be exchanged for a fresh one, and a person in front.
class OwnedPanel : public testing::Test {
protected:
    MarvaneAssistant& panel() { return owner_.panel(); }
    Runtime::Store& store() { return owner_.store(); }
    Runtime::UserInput& input() { return store().input(); }
    void click(Widgets::WidgetId widget) { store().perform(Deed::click(widget)); }
    bool isLit(Widgets::ShapeRef lamp) { return Runtime::isLit(store(), lamp); }

    Script::StorePanel owner_;
};

}  // namespace Orvo::Tests
