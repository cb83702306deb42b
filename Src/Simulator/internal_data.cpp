#include "Simulator/internal_data.h"

#include <cmath>
#include <initializer_list>

namespace Orvo::Simulator {
namespace {

constexpr int kFirstSerial = 41000;

std::string text(double value) { return std::to_string(std::lround(value)); }

std::string twoDigits(std::int64_t value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

std::string joined(std::initializer_list<std::string> parts) {
    std::string all;
    for (const std::string& part : parts) all += part;
    return all;
}

}  // namespace

Information factoryInformation(std::uint32_t seed) {
    const auto serial = kFirstSerial + static_cast<int>(seed % 1000) * 7;
    return {"Four channels, 4 ohms", "MA4-" + std::to_string(serial),
            "CM-" + std::to_string(serial + 3)};
}

std::string clockText(Milliseconds time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    return twoDigits(seconds / 3600) + ':' + twoDigits(seconds / 60 % 60) + ':' +
           twoDigits(seconds % 60);
}

std::vector<std::string> describe(const Information& information) {
    return {"SN amplifier: " + information.amplifierSerial,
            "SN control module: " + information.cardSerial, "Information: " + information.general};
}

std::string describe(int number, const Channel& channel) {
    return joined({"Channel ", std::to_string(number), ": ", std::to_string(channel.volume()),
                   " dB, ", channel.isMuted() ? "muted" : "open", ", ",
                   text(channel.deliveredWatts()), " W, protection ",
                   std::to_string(channel.protection().trips()), " times"});
}

std::string describe(int number, const ChannelPair& pair) {
    return joined({"Pair ", std::to_string(number), ": ", text(pair.sink().degrees()),
                   " C, highest ", text(pair.highestDegrees()), " C, fan ",
                   text(pair.sink().fan() * 100), " %"});
}

}  // namespace Orvo::Simulator
