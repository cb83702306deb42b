#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace Orvo::Manager {

/// What a person has to know before trusting what the panel shows.
struct Situation {
    std::string connectedTo;  ///< empty: nothing is connected
    bool isLinkUp = false;
    bool isHeard = false;  ///< what is connected has spoken, and its link has not been lost since
    /// Since it was connected.
    std::chrono::milliseconds connectedFor{0};
    /// Since the last word that the panel's values are of, also of what was connected before; none
    /// when it has no values.
    std::optional<std::chrono::milliseconds> silence = std::nullopt;
};

/// The situation in words (UTF-8).
struct StatusText {
    std::string connection;
    std::string link;
    std::string lastWord;  ///< empty when there is nothing to tell
    bool isStale = false;  ///< what the panel shows is old, and must not be taken for live
    /// What stands over a panel that is veiled, as nothing of what it shows is known at the moment;
    /// empty when it is live.
    std::string veil;
};

/// From so much silence on, the values shown are called old.
constexpr std::chrono::seconds kStaleAfter{4};

StatusText statusText(const Situation& situation);

/// "8 s", "3 min 05 s", "2 h 07 min": whole units, rounded down.
std::string inWords(std::chrono::milliseconds time);

}  // namespace Orvo::Manager
