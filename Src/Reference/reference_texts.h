#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"

// What the reference page says of members and events beyond their tables.
namespace Orvo::Script {

struct MemberText {
    std::string_view name;
    std::string_view text;
    std::string_view values{};  ///< units and ranges
    std::string_view errors{};  ///< besides those that every member can have
};

struct EventText {
    std::string_view name;
    std::string_view text;
    std::string_view values{};
};

// clang-format off

/// One row for each name, in the order in which the member table brings it first.
inline constexpr auto kMemberTexts = std::to_array<MemberText>({
    {"TrimStr",       "The text up to, and without, its first NUL; the whole text when it has none.",
                      "`strName` any text.",
                      "6 when the first NUL lies beyond position 32767, counted from 1."},
    {"LPSTRtoSTRING", "The NUL-terminated ANSI text (code page 1252) at an address of the panel's heap.",
                      "`lngPointer` a 32-bit address; 0 gives an empty text.",
                      "5 when the heap doesn't own the address, or the text doesn't end within its block."},
    {"GetAvailablePorts",
                      "Lists the ports of a print server into the panel's port table and returns their number. When the enumeration fails, the table stays as it is and the result is what the enumeration reports, normally 0.",
                      R"(`ServerName` the server's name, `""` for this machine.)",
                      "9 after the first 101 ports, which are kept; 6 above 32768 ports."},
    {"CancellaTesto", "Empties the message log."},
    {"AggiugiTesto",  "Adds a line at the end of the message log, as it is.",
                      "`strTesto` any text, also an empty one.",
                      "7 when the log is full: 2097152 lines, or 67108864 characters in all."},
    {"chkTest",       R"(Written, shows a quick-test row as passed ("PASS") or failed ("FAIL"); read, tells whether it shows "PASS".)",
                      "`Ncheck` 0 temperature, 1 and 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence.",
                      "340 for any other row."},
    {"ClearMains",    "Clears quick-test row 5, mains presence."},
    {"ClearTest",     "Clears quick-test rows 0 to 4."},
    {"Connected",     "Shows whether the link to the amplifier is up."},
    {"Protection",    "Shows the protection state of a channel, or of the whole amplifier.",
                      "`intChannel` 1 to 4, or 0 for the whole amplifier."},
    {"Signal",        "Shows the signal presence of a channel.",
                      "`intChannel` 1 to 4."},
    {"AbilitaSlave",  "Enables or disables the tab of the second pair. While it is disabled, channels 3 and 4 don't count in the amplifier-wide mute lamp.",
                      "`blnAbilita` is handed on unchanged."},
    {"IdDevice",      "The selected amplifier's id: 1 at first, then as a person picked it or the host wrote it. Writing shows it and raises no event.",
                      "`intIdDevice` any Integer; the list offers 1 to 99."},
    {"VPPower",       "Voltage of a pair's positive power rail: shows the first three digits.",
                      "`intChannel` 1 or 2, a pair; `intValue` in volts, from 0.",
                      "13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then."},
    {"VPAux",         "Voltage of a pair's positive auxiliary rail: shows the first three digits.",
                      "`intChannel` 1 or 2, a pair; `intValue` in volts, from 0.",
                      "13 as for `VPPower`."},
    {"Clock",         "Shows the clock state of a pair.",
                      "`intChannel` 1 or 2, a pair."},
    {"Ready",         "Shows the ready state of a pair.",
                      "`intChannel` 1 or 2, a pair."},
    {"VNPower",       "Magnitude of a pair's negative power rail: shows the first three digits.",
                      "`intChannel` 1 or 2, a pair; `intValue` in volts, from 0.",
                      "13 as for `VPPower`."},
    {"VNAux",         "Magnitude of a pair's negative auxiliary rail: shows the first three digits.",
                      "`intChannel` 1 or 2, a pair; `intValue` in volts, from 0.",
                      "13 as for `VPPower`."},
    {"PowerOn",       "The power state: false at first, then as the host wrote it."},
    {"MainPresence",  "Shows mains presence, on both pair tabs."},
    {"Volume",        "Shows a channel's volume: the first two digits of the magnitude, with a minus sign unless it is 0.",
                      "`intChannel` 1 to 4; `intValue` in dB.",
                      "6 for -32768."},
    {"VolumeSlider",  "Puts a channel's slider where it stands for this volume: position (30 - volume) / 2, an odd volume counting as the next higher one.",
                      "`intChannel` 1 to 4; `intValue` in dB, -30 to 30 for a position that the slider can show.",
                      "6, whatever the channel, for 32767 and from -32738 down."},
    {"VolumeSliderButtonDown",
                      "Whether a person holds a channel's slider at this moment.",
                      "`intChannel` 1 to 4."},
    {"Temperature",   "Shows a pair's temperature: the first three digits.",
                      "`intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, from 0.",
                      "13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then."},
    {"TimerVirtualTemp12",
                      "Whether the test temperature of pair 1 is repeated every 1500 ms, unless it is 0; it is at first.",
                      "`bln` is handed on unchanged."},
    {"TimerVirtualTemp34",
                      "The same for pair 2.",
                      "`bln` is handed on unchanged."},
    {"DisegnaAssi",   "Clears a channel's oscilloscope and draws its grid.",
                      "`intNCanale` 1 to 4; any other channel counts as 1."},
    {"DisegnaFormaDOnda",
                      "Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the array's upper bound over its width.",
                      "`intNumCanale` 1 to 4; `arrSamples` samples from 0 to 255, of which 128 lies near 0 V and larger ones lie lower; others lie outside the surface.",
                      "5 for a channel outside 1 to 4. 9 for an array without a dimension, and for one with several dimensions or a lower bound above 1 when its upper bound is 2 or more; 6 for an upper bound above 32767 or below -32767; in these cases the grid has been drawn."},
    {"Mute",          "Mute state of a channel, or of all channels and the amplifier-wide lamp. After every write, whatever the index, the amplifier-wide lamp follows when all channels that count agree.",
                      "`intChannel` 1 to 4, or 0."},
    {"ReadOnly",      "-1 keeps a person from changing the amplifier's state, every other value lets them; the displays follow the host all the same. Asking for the internal data stays possible, and so does the information entry behind its password. It is 0 at first.",
                      "`blnValue` any Boolean; it is read back as it was written."},
});

/// One row for each event, by dispatch id.
inline constexpr auto kEventTexts = std::to_array<EventText>({
    {"OnOff",               "A person asks to switch the amplifier on or off."},
    {"Mute",                "A person asks to toggle the mute state of a channel, or of the whole amplifier.",
                            "`intChannel` 1 to 4, or 0 for the whole amplifier."},
    {"reset",               "Never raised."},
    {"AuxBus",              "Never raised."},
    {"DownLoad",            "A person asks for the amplifier's internal data."},
    {"PowerBus",            "Never raised."},
    {"VolumeChange",        "A person moved a channel's volume slider.",
                            "`intChannel` 1 to 4; `intVolume` in dB, even, -30 to 30."},
    {"SetTemp",             "The test temperature of a pair: on every move of its slider, and every 1500 ms while it is not 0 and the pair's timer runs.",
                            "`intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, 0 to 100."},
    {"WaveForm",            "A person starts the wave generator for a channel.",
                            "`intNChannel` 1 to 4; `intTypeWaveForm` 0 is 100 Hz, 1 is 1 kHz, 2 is 10 kHz, 3 is EIAJ (1 kHz), 4 is line in; `intPosNeg` 1 is the positive input, 2 the negative one."},
    {"GeneralInformations", "Service staff entered new information for the selected amplifier.",
                            "`intIdDevice` the amplifier's id; `strInformations` any text; `strSnAmp` and `strSnCard` the serial numbers of the amplifier and of its control module card, not empty."},
    {"QuickTest",           "Never raised."},
    {"ChangeComPort",       "Never raised."},
    {"ChangeAmpId",         "A person picked another amplifier id.",
                            "`intIdDevice` 1 to 99."},
    {"Help",                "Never raised."},
});

// clang-format on

static_assert(std::all_of(kMembers.begin(), kMembers.end(), [](const Member& member) {
    return std::any_of(kMemberTexts.begin(), kMemberTexts.end(),
                       [&](const MemberText& row) { return row.name == member.name; });
}));
static_assert(std::all_of(kMemberTexts.begin(), kMemberTexts.end(), [](const MemberText& row) {
    return std::any_of(kMembers.begin(), kMembers.end(),
                       [&](const Member& member) { return row.name == member.name; });
}));
static_assert(std::equal(kEvents.begin(), kEvents.end(), kEventTexts.begin(), kEventTexts.end(),
                         [](const Event& event, const EventText& row) {
                             return event.name == row.name;
                         }));

}  // namespace Orvo::Script
