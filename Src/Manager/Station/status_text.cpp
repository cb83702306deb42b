#include "Manager/Station/status_text.h"

#include <cstdint>

namespace Orvo::Manager {
namespace {

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

bool isStale(const Situation& situation) {
    return situation.silence ? *situation.silence >= kStaleAfter : situation.showsOldValues;
}

std::string lastWord(const Situation& situation) {
    using namespace std::chrono_literals;
    const std::string oldValues = isStale(situation) ? ": old values" : "";
    if (!situation.silence) return "No word yet" + oldValues;
    const std::string silence = inWords(*situation.silence);
    if (!oldValues.empty()) return "No word for " + silence + oldValues;
    return *situation.silence < 1s ? "Last word just now" : "Last word " + silence + " ago";
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
            .lastWord = lastWord(situation),
            .isStale = isStale(situation)};
}

}  // namespace Orvo::Manager
