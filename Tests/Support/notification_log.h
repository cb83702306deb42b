#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Orvo/layout/layout.h"
#include "Orvo/widgets/notification.h"

namespace Orvo::Tests {

/// What a widget has told: {kCommon.log, "key18"}.
struct Told {
    Widgets::WidgetId widget;
    std::string what;

    friend bool operator==(const Told&, const Told&) = default;
    friend void PrintTo(const Told& told, std::ostream* out) {
        *out << Layout::describe(told.widget).name << ' ' << told.what;
    }
};

/// Stands where a panel would be told.
class NotificationLog final : public Widgets::NotificationSink {
public:
    void notify(Widgets::Notification& notification) override {
        constexpr const char* kNames[] = {"click", "release", "key", "tick", "change"};
        const std::string key =
            notification.keyCode != 0 ? std::to_string(notification.keyCode) : "";
        heard_.push_back({notification.widget, kNames[static_cast<int>(notification.kind)] + key});
        if (discardsKeys) notification.keyCode = 0;
        if (answer) answer();
    }

    /// All since the last time.
    std::vector<Told> take() { return std::exchange(heard_, {}); }

    bool discardsKeys = false;
    std::function<void()> answer;

private:
    std::vector<Told> heard_;
};

}  // namespace Orvo::Tests
