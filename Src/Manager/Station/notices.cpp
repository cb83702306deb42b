#include "Manager/Station/notices.h"

#include <cstddef>
#include <utility>

#include "Manager/Station/signal_names.h"
#include "Orvo/core/event_table.h"
#include "Orvo/store/shown.h"

namespace Orvo::Manager {
namespace {

using enum Notice::Kind;
using Runtime::isLit;

constexpr std::size_t kLineIn = kSignalNames.size() - 1;  // no signal of the generator's

// What is missing has nothing to say, and no tab to lead to.
bool isThere(const Runtime::Store& store, std::size_t pair) {
    return store.get<Runtime::StoredTabs>(Layout::kTabs.id).state().enabled.at(1 + pair);
}

// The channels with such a lamp lit, in one notice about the first of them.
template <class About>
void addLit(std::vector<Notice>& all, Notice notice, Widgets::ShapeRef Layout::Channel::*lamp,
            About Layout::Channel::*about, const Runtime::Store& store) {
    std::string separator = ": ";
    for (std::size_t i = 0; i < Layout::kChannels.size(); ++i) {
        if (!isThere(store, i / 2) || !isLit(store, Layout::kChannels[i].*lamp)) continue;
        if (separator == ": ") notice.about = Layout::kChannels[i].*about;
        notice.text += std::exchange(separator, ", ") + std::to_string(i + 1);
    }
    if (separator != ": ") all.push_back(std::move(notice));
}

void addThermalTests(std::vector<Notice>& all, const Runtime::Store& store) {
    for (std::size_t i = 0; i < Layout::kPairs.size(); ++i) {
        const auto slider = Layout::kPairs[i].testSlider;
        const auto degrees = store.get<Runtime::StoredSlider>(slider).state().position;
        if (degrees == 0 || !isThere(store, i)) continue;
        all.push_back({activity,
                       std::string("Thermal test ") + (i == 0 ? "1 + 2: " : "3 + 4: ") +
                           std::to_string(degrees) + " °C",
                       slider});
    }
}

}  // namespace

void Notices::raised(Long dispatchId, std::span<const Value> arguments) {
    constexpr Long kStarted = eventNamed("WaveForm").dispatchId;
    if (dispatchId != kStarted) return;
    const auto number = [&](std::size_t i) {
        return static_cast<std::size_t>(std::get<Integer>(arguments[i]));
    };
    const std::size_t channel = number(0);
    const std::size_t signal = number(1);
    generators_.at((channel - 1) / 2) =
        signal == kLineIn ? ""
                          : "Generator: " + std::string(kSignalNames.at(signal)) + " to channel " +
                                std::to_string(channel) + (number(2) == 1 ? " +" : " −");
}

std::vector<Notice> Notices::on(const Runtime::Store& store) const {
    const bool isOn = isLit(store, Layout::kCommon.powerLamp);
    std::vector<Notice> all;
    addLit(all, {alarm, "Protection"}, &Layout::Channel::protectionLamp,
           &Layout::Channel::protectionLamp, store);
    if (all.empty() && isLit(store, Layout::kCommon.protectionLamp))
        all.push_back({alarm, "Protection", Layout::kCommon.protectionLamp});
    for (std::size_t pair = 0; pair < Layout::kPairs.size(); ++pair) {
        const std::string& generator = generators_[pair];
        if (isOn && isThere(store, pair) && !generator.empty())
            all.push_back({activity, generator, Layout::kPairs[pair].startButton});
    }
    addThermalTests(all, store);
    addLit(all, {activity, "Muted"}, &Layout::Channel::muteLamp, &Layout::Channel::muteButton,
           store);
    return all;
}

}  // namespace Orvo::Manager
