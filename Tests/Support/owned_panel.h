#pragma once

#include <string_view>

#include "Script/store_panel.h"
#include "Support/bench.h"

namespace Orvo::Tests {

/// A panel on the store alone that may be exchanged for a fresh one, and a person in front.
class OwnedPanel : public testing::Test {
protected:
    MarvaneAssistant& panel() { return owner_.panel(); }
    Runtime::Store& store() { return owner_.store(); }
    Runtime::UserInput& person() { return store().input(); }
    void click(std::string_view widget) { person().click(id(widget)); }
    bool isLit(std::string_view shape) {
        return store().get<Runtime::StoredShape>(id(shape)).fillStyle() ==
               Widgets::FillStyle::solid;
    }

    Script::StorePanel owner_;
};

}  // namespace Orvo::Tests
