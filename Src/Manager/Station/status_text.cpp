#include "Manager/Station/status_text.h"

#include <algorithm>
#include <cstdint>

namespace Orvo::Manager {
namespace {

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

bool isLive(const Situation& situation) {
    return situation.isHeard && situation.silence && *situation.silence < kStaleAfter;
}

bool isStale(const Situation& situation) { return situation.silence && !isLive(situation); }

// A device that is new hasn't been silent for as long as the values are old.
std::string noReply(const Situation& situation) {
    const auto silence = situation.silence.value_or(situation.connectedFor);
    return "No reply for " + inWords(std::min(silence, situation.connectedFor));
}

std::string lastWord(const Situation& situation) {
    using namespace std::chrono_literals;
    if (situation.connectedTo.empty()) return situation.silence ? "Old values" : "";
    if (!situation.silence) return "No reply yet";
    if (isStale(situation)) return noReply(situation) + ": old values";
    if (*situation.silence < 1s) return "Last word just now";
    return "Last word " + inWords(*situation.silence) + " ago";
}

std::string veil(const Situation& situation) {
    using namespace std::chrono_literals;
    if (isLive(situation)) return "";
    if (!situation.connectedTo.empty()) {
        const bool isNew = situation.connectedFor < 1s;
        return isNew ? "Waiting for a reply" : noReply(situation) + ", trying again";
    }
    if (!situation.silence) return "Nothing connected";
    return "Nothing connected, values of " + inWords(*situation.silence) + " ago";
}

}  // namespace

std::string inWords(std::chrono::milliseconds time) {
    const std::int64_t seconds = time.count() / 1000;
    const std::int64_t minutes = seconds / 60;
    if (minutes == 0) return std::to_string(seconds) + " s";
    if (minutes < 60) return std::to_string(minutes) + " min " + twoDigits(seconds % 60) + " s";
    return std::to_string(minutes / 60) + " h " + twoDigits(minutes % 60) + " min";
}

StatusText statusText(const Situation& situation) {
    const bool isConnected = !situation.connectedTo.empty();
    return {.connection = isConnected ? situation.connectedTo : "Nothing connected",
            .link = isConnected && situation.isLinkUp ? "Link up" : "Link down",
            .lastWord = lastWord(situation),
            .isStale = isStale(situation),
            .veil = veil(situation)};
}

}  // namespace Orvo::Manager
