#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "Script/session.h"
#include "Script/store_panel.h"

namespace Orvo::Script {

/// Commands that are written down and, at once, carried out on a fresh panel. The events are there
/// as comments, as in a recording.
class TriedScript {
public:
    void say(const std::string& command);
    void comment(std::string_view text) { text_.append("# ").append(text).append("\n"); }

    /// What comes of it.
    [[nodiscard]] const Runtime::Store& store() { return panel_.store(); }
    template <class Stored, class Id>
    [[nodiscard]] const auto& state(Id widget) {
        return store().get<Stored>(widget).state();
    }

    [[nodiscard]] std::string take() { return std::move(text_); }

private:
    void hear(std::string_view line);

    std::string text_;
    StorePanel panel_;
    Session session_{panel_, panel_, {}, [this](std::string_view line) { hear(line); }};
};

}  // namespace Orvo::Script
