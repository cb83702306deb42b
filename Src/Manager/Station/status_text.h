#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace Orvo::Manager {

/// What a person has to know before trusting what the panel shows.
struct Situation {
    std::string connectedTo;  ///< empty: nothing is connected
    bool isLinkUp = false;
    /// Since the last word, if there was one.
    std::optional<std::chrono::milliseconds> silence = std::nullopt;
    bool showsOldValues = false;  ///< what was connected before has left values
};

/// The situation in words (UTF-8).
struct StatusText {
    std::string connection;
    std::string link;
    std::string lastWord;  ///< empty when there is nothing to tell
    bool isStale = false;  ///< what the panel shows is old, and must not be taken for live
};

/// From so much silence on, the values shown are called old.
constexpr std::chrono::seconds kStaleAfter{4};

StatusText statusText(const Situation& situation);

/// "8 s", "3 min 05 s", "2 h 07 min": whole units, rounded down.
std::string inWords(std::chrono::milliseconds time);

}  // namespace Orvo::Manager
