#include "Manager/Host/panel_mirror.h"

#include <array>

namespace Orvo::Manager {
namespace {

using namespace Simulator;

using Panel = MarvaneAssistantInterface;

struct Member {
    Item item;
    void (*show)(Panel& panel, Integer index, Integer value);
};

// A member that takes a flag, without and with an index, and one that takes a value.
template <void (Panel::*kMember)(Boolean)>
constexpr auto flag = [](Panel& panel, Integer, Integer value) { (panel.*kMember)(value != 0); };
template <void (Panel::*kMember)(Integer, Boolean)>
constexpr auto flagOf =
    [](Panel& panel, Integer index, Integer value) { (panel.*kMember)(index, value != 0); };
template <void (Panel::*kMember)(Integer, Integer)>
constexpr auto valueOf =
    [](Panel& panel, Integer index, Integer value) { (panel.*kMember)(index, value); };

constexpr std::array<Member, 14> kMembers{{
    {Item::power, flag<&Panel::PowerOn>},
    {Item::mains, flag<&Panel::MainPresence>},
    {Item::secondPair, flag<&Panel::AbilitaSlave>},
    {Item::protection, flagOf<&Panel::Protection>},
    {Item::mute, flagOf<&Panel::Mute>},
    {Item::signal, flagOf<&Panel::Signal>},
    {Item::volume, valueOf<&Panel::Volume>},
    {Item::clock, flagOf<&Panel::Clock>},
    {Item::ready, flagOf<&Panel::Ready>},
    {Item::temperature, valueOf<&Panel::Temperature>},
    {Item::positivePower, valueOf<&Panel::VPPower>},
    {Item::negativePower, valueOf<&Panel::VNPower>},
    {Item::positiveAux, valueOf<&Panel::VPAux>},
    {Item::negativeAux, valueOf<&Panel::VNAux>},
}};

constexpr std::array<Integer, 2> kSecondPairChannels{3, 4};
constexpr Integer kSecondPair = 2;

constexpr std::array kClearedByChannel{Item::protection, Item::mute, Item::signal};
constexpr std::array kClearedByPair{Item::clock,         Item::ready,         Item::temperature,
                                    Item::positivePower, Item::negativePower, Item::positiveAux,
                                    Item::negativeAux};

}  // namespace

PanelMirror::Effect PanelMirror::show(const Reading& reading) {
    const auto [place, isNew] = readings_.try_emplace({reading.item, reading.index});
    Shown& shown = place->second;
    const bool isChanged = !isNew && shown.value != reading.value;
    if (!isNew && !isChanged && !shown.isToRepeat) return Effect::none;
    shown = {reading.value};
    for (const Member& member : kMembers) {
        if (member.item == reading.item) member.show(panel_, reading.index, reading.value);
    }
    return isChanged ? Effect::changed : Effect::shown;
}

void PanelMirror::show(const ScopeFrame& frame) {
    const auto [shown, isNew] = frames_.try_emplace(frame.channel);
    const bool isShown = !isNew && shown->second.samples == frame.samples;
    shown->second = frame;
    if (!isShown) panel_.DisegnaFormaDOnda(frame.channel, frame.samples);
}

std::optional<double> PanelMirror::sampleInterval(Integer channel) const {
    const auto frame = frames_.find(channel);
    return frame != frames_.end() ? std::optional(frame->second.interval) : std::nullopt;
}

void PanelMirror::clearSecondPair() {
    for (const Integer channel : kSecondPairChannels) {
        for (const Item item : kClearedByChannel) show({item, channel, 0});
        frames_.erase(channel);
        panel_.DisegnaAssi(channel);
    }
    for (const Item item : kClearedByPair) show({item, kSecondPair, 0});
}

void PanelMirror::repeat(Item item) {
    for (auto& [place, shown] : readings_) {
        if (place.first == item) shown.isToRepeat = true;
    }
}

void PanelMirror::repeatAll() {
    for (auto& [place, shown] : readings_) shown.isToRepeat = true;
    frames_.clear();
}

void PanelMirror::forget() {
    readings_.clear();
    frames_.clear();
}

}  // namespace Orvo::Manager
