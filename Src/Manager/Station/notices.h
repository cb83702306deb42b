#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Orvo/core/value.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"

namespace Orvo::Manager {

/// What goes on in the amplifier and must not be forgotten, whatever tab is in front.
struct Notice {
    enum class Kind : std::uint8_t { alarm, activity };

    Kind kind = Kind::activity;
    std::string text;             ///< UTF-8
    Widgets::WidgetId about = 0;  ///< the control or lamp that it speaks of

    friend bool operator==(const Notice&, const Notice&) = default;
};

/// Nothing on the panel shows a running generator: it is known from what it was started with, and
/// rests while the amplifier is switched off.
class Notices final {
public:
    /// An event that a device hears.
    void raised(Long dispatchId, std::span<const Value> arguments);
    /// The amplifier, or the panel, is another one.
    void startAnew() { generators_ = {}; }

    /// What each pair's generator was started with; empty: it rests.
    [[nodiscard]] const auto& generators() const { return generators_; }
    /// Alarms first.
    [[nodiscard]] std::vector<Notice> on(const Runtime::Store& store) const;

private:
    std::array<std::string, Layout::kPairs.size()> generators_;
};

}  // namespace Orvo::Manager
