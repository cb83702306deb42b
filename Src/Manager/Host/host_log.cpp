#include "Manager/Host/host_log.h"

#include <array>
#include <string>

#include "Orvo/values/text.h"

namespace Orvo::Manager {
namespace {

using namespace Simulator;

struct Change {
    Item item;
    std::string_view whenSet;
    std::string_view whenCleared;
};

constexpr std::array<Change, 5> kChanges{{
    {Item::power, "Amplifier on", "Amplifier off"},
    {Item::mains, "Mains present", "Mains failure"},
    {Item::secondPair, "Channels 3 and 4 present", "Channels 3 and 4 missing"},
    {Item::protection, "protection tripped", "protection cleared"},
    {Item::mute, "muted", "unmuted"},
}};

}  // namespace

void HostLog::tell(Milliseconds now, std::string_view text) {
    add(clock_(now) + "  " + std::string(text));
}

void HostLog::add(std::string_view line) { panel_.AggiugiTesto(fromUtf8(line)); }

void HostLog::tell(Milliseconds now, const Reading& reading) {
    // The amplifier's own protection follows from that of its channels.
    const bool isChannel = reading.item == Item::protection || reading.item == Item::mute;
    if (isChannel && reading.index == 0) return;
    for (const Change& change : kChanges) {
        if (change.item != reading.item) continue;
        const std::string_view text = reading.value != 0 ? change.whenSet : change.whenCleared;
        const auto channel = "Channel " + std::to_string(reading.index) + ": ";
        tell(now, (isChannel ? channel : "") + std::string(text));
    }
}

}  // namespace Orvo::Manager
