#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>

#include "Orvo/core/events.h"
#include "Orvo/core/member_table.h"
#include "Orvo/core/value.h"

namespace Orvo {

/// One event of the panel.
struct Event {
    Long dispatchId = 0;
    std::string_view name;
    std::array<Parameter, 4> parameterSlots{};
    std::size_t parameterCount = 0;

    [[nodiscard]] constexpr std::span<const Parameter> parameters() const {
        return std::span(parameterSlots).first(parameterCount);
    }
};

namespace Detail {

template <auto kFunction>
consteval Event event(Long dispatchId, std::string_view name,
                      std::initializer_list<Parameter> parameters) {
    if (!fits<decltype(kFunction)>(parameters)) throw "the parameters are not the function's";
    return {.dispatchId = dispatchId,
            .name = name,
            .parameterSlots = padded<4>(parameters),
            .parameterCount = parameters.size()};
}

consteval auto eventTable() {
    using E = MarvaneAssistantEvents;
    using enum ValueType;
    // clang-format off
    return std::to_array<Event>({
        event<&E::OnOff>               ( 1, "OnOff", {}),
        event<&E::Mute>                ( 2, "Mute", {{"intChannel", integer}}),
        event<&E::reset>               ( 3, "reset", {}),
        event<&E::AuxBus>              ( 4, "AuxBus", {}),
        event<&E::DownLoad>            ( 5, "DownLoad", {}),
        event<&E::PowerBus>            ( 6, "PowerBus", {{"intChannel", integer}}),
        event<&E::VolumeChange>        ( 7, "VolumeChange", {{"intChannel", integer}, {"intVolume", integer}}),
        event<&E::SetTemp>             ( 8, "SetTemp", {{"intChannel", integer}, {"intValue", integer}}),
        event<&E::WaveForm>            ( 9, "WaveForm", {{"intNChannel", integer}, {"intTypeWaveForm", integer}, {"intPosNeg", integer}}),
        event<&E::GeneralInformations> (10, "GeneralInformations", {{"intIdDevice", integer}, {"strInformations", string}, {"strSnAmp", string}, {"strSnCard", string}}),
        event<&E::QuickTest>           (11, "QuickTest", {}),
        event<&E::ChangeComPort>       (12, "ChangeComPort", {{"intumCommPort", integer}}),
        event<&E::ChangeAmpId>         (13, "ChangeAmpId", {{"intIdDevice", integer}}),
        event<&E::Help>                (14, "Help", {}),
    });
    // clang-format on
}

}  // namespace Detail

/// All events, by dispatch id.
inline constexpr auto kEvents = Detail::eventTable();

/// An event by its dispatch id, which must be one of the table's.
constexpr const Event& eventWith(Long dispatchId) {
    return kEvents[static_cast<std::size_t>(dispatchId - kEvents.front().dispatchId)];
}

/// An event by its name; one that the table doesn't have doesn't compile.
consteval const Event& eventNamed(std::string_view name) {
    for (const Event& event : kEvents) {
        if (event.name == name) return event;
    }
    throw "no event of this name";
}

}  // namespace Orvo
