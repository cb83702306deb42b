#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Orvo/core/call_listener.h"
#include "Script/log_file.h"
#include "Script/panel_owner.h"

namespace Orvo::Manager {

/// The date and the time of day here: "2026-03-14 15:09:26".
std::string localTime(std::chrono::system_clock::time_point time);
/// The time of day alone.
std::string timeOfDay(std::chrono::system_clock::time_point time);

/// The whole session's log: each line that stood in the panel's message log, whoever has emptied
/// that since, and what the program itself has to tell; with the time at which it came.
class SessionLog final : private CallListener {
public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// How many lines the panel's own log may have, and how many `shorten` leaves.
    static constexpr std::size_t kMostShown = 10'000;
    static constexpr std::size_t kLeftShown = 200;

    /// In a file, see Script::LogFile; empty: in memory alone.
    SessionLog(Script::PanelOwner& owner, const std::string& path,
               Clock clock = std::chrono::system_clock::now);

    /// One line (UTF-8). A time of day that it begins with already isn't said twice.
    void add(std::string_view text);
    /// Brings what is new to the disk. Why it doesn't take it, the first time.
    std::optional<std::string> flush();

    /// In UTF-8, from the start of the program on.
    [[nodiscard]] std::string text() const { return file_.text(); }

    /// What stands before the panel's lines from now on, when they tell of another time.
    void mark(std::string_view mark) { mark_ = mark; }

    /// Leaves the end of the panel's log, which keeps every line, when it gets too long.
    void shorten();

private:
    void called(const Member& member, std::span<const Value> arguments) override;
    void hear() { calls_ = owner_.panel().listen(*this); }

    Script::PanelOwner& owner_;
    Script::LogFile file_;
    const Clock clock_;
    std::string mark_;
    Connection calls_;
    Connection renewals_;
};

}  // namespace Orvo::Manager
