#include "Manager/Host/request_text.h"

#include <cstddef>
#include <string_view>
#include <variant>

#include "Manager/Station/signal_names.h"

namespace Orvo::Manager {
namespace {

using namespace Simulator;

static_assert(kSignalNames.size() == kSignalCount);

std::string numbered(std::string_view what, Integer number) {
    return std::string(what) + ' ' + std::to_string(number) + ": ";
}

std::string text(const SwitchPower& request) { return request.isOn ? "Switch on" : "Switch off"; }

std::string text(const SetMute& request) {
    const auto channel =
        request.channel == 0 ? "All channels: " : numbered("Channel", request.channel);
    return channel + (request.isMuted ? "mute" : "unmute");
}

std::string text(const SetVolume& request) {
    return numbered("Channel", request.channel) + std::to_string(request.decibels) + " dB";
}

std::string text(const StartGenerator& request) {
    return numbered("Channel", request.channel) +
           std::string(kSignalNames[static_cast<std::size_t>(request.signal)]) + " to the " +
           (request.input == Input::positive ? "positive" : "negative") + " input";
}

std::string text(const SetVirtualTemperature& request) {
    const std::string channels = request.pair == 1 ? "Channels 1 and 2: " : "Channels 3 and 4: ";
    const std::string degrees = "thermal test at " + std::to_string(request.degrees) + " °C";
    return channels + (request.degrees == 0 ? "thermal test ended" : degrees);
}

std::string text(const SetInformation& /*request*/) { return "Information"; }

std::string text(const AskInternalData& /*request*/) { return "Internal data"; }

}  // namespace

std::string describe(const Request& request) {
    return std::visit([](const auto& one) { return text(one); }, request);
}

}  // namespace Orvo::Manager
