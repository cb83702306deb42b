#pragma once

#include <algorithm>

#include "Script/store_panel.h"

namespace Orvo::Fuzz {

/// Whose person doesn't wait for long: ticks by the million are slow, not wrong.
class HurriedPanel final : public Script::StorePanel {
public:
    void wait(std::chrono::milliseconds time) override {
        constexpr std::chrono::milliseconds kLongest(5000);
        StorePanel::wait(std::min(time, kLongest));
    }
};

}  // namespace Orvo::Fuzz
