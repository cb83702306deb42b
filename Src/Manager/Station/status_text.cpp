#include "Manager/Station/status_text.h"

#include <cstdint>

namespace Orvo::Manager {
namespace {

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string lastWord(std::chrono::milliseconds silence) {
    using namespace std::chrono_literals;
    if (silence >= kStaleAfter) return "No word for " + inWords(silence) + ": old values";
    if (silence < 1s) return "Last word just now";
    return "Last word " + inWords(silence) + " ago";
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
    if (situation.connectedTo.empty()) {
        return {.connection = "Nothing connected",
                .link = "Link down",
                .lastWord = situation.showsOldValues ? "Old values" : "",
                .isStale = situation.showsOldValues};
    }
    return {.connection = situation.connectedTo,
            .link = situation.isLinkUp ? "Link up" : "Link down",
            .lastWord = lastWord(situation.silence),
            .isStale = situation.silence >= kStaleAfter};
}

}  // namespace Orvo::Manager
