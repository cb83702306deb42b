#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"

namespace Orvo {

/// What a member or an event promises: plain text, with names in backquotes.
///
/// The comments in interface.h and events.h, the reference page and the console's help are written
/// from these; the target "reference" brings the first two up to date.
struct Contract {
    std::string_view name;
    std::string_view effect;    ///< of an event: when it is raised
    std::string_view values{};  ///< units and ranges
    std::string_view errors{};  ///< their numbers first; besides those that every member can have
};

// clang-format off

/// What holds for all members, a line for each paragraph.
inline constexpr std::string_view kMemberRules =
R"(The panel's members, in interface order. A property is written by a let, whose last parameter is the new value, and read by a get; in C++ these are overloads.

Integer is a 16-bit, Long a 32-bit signed number; String is length-counted UTF-16 text; Boolean is a 16-bit value, true is -1 and false is 0. A member takes any Boolean but 0 as true, and returns -1 or 0, except `ReadOnly`.

A channel is 1 to 4, a pair 1 (channels 1 and 2) or 2 (channels 3 and 4), and 0, where it is taken, the whole amplifier. An index outside a member's range does nothing, or reads false, unless the member says otherwise.

Every member may end with an error: 1001 when it is called from another thread than the panel's, 7 when memory runs out, or whatever the widgets' runtime reports. What it wrote before that stays written, and the panel goes on.
)";

/// What holds for all events, likewise.
inline constexpr std::string_view kEventRules =
R"(The panel's events, by dispatch id; in C++ a sink overrides those that it wants to hear.

Arguments are references to copies made for each call: assigning to them changes nothing in the panel. A handler may call the panel, connect and disconnect sinks, and release the panel. An exception that it lets escape goes to the panel's error handler, and so does error 7 when there is no memory for the copies; the panel goes on.
)";

// clang-format on

namespace Detail {

inline constexpr std::string_view kChannel = "`intChannel` 1 to 4.";
inline constexpr std::string_view kChannelOrAll =
    "`intChannel` 1 to 4, or 0 for the whole amplifier.";
inline constexpr std::string_view kPair = "`intChannel` 1 or 2, a pair.";
inline constexpr std::string_view kVolts =
    "`intChannel` 1 or 2, a pair; `intValue` in volts, from 0.";
inline constexpr std::string_view kTestRow =
    "`Ncheck` 0 temperature, 1 and 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence.";
inline constexpr std::string_view kNoTestRow = "340 for any other row.";
inline constexpr std::string_view kNegative =
    "13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then.";
inline constexpr std::string_view kTimer = "`bln` any Boolean, handed to the timer unchanged.";
inline constexpr std::string_view kNever = "Never raised.";

}  // namespace Detail

// clang-format off

/// One row for each member, in interface order.
inline constexpr auto kMemberContracts = std::to_array<Contract>({
    {"TrimStr", "The text up to, and without, its first NUL; the whole text when it has none.",
     "`strName` any text.",
     "6 when the first NUL lies beyond position 32767, counted from 1."},
    {"LPSTRtoSTRING", "The NUL-terminated ANSI text (code page 1252) at an address of the panel's heap.",
     "`lngPointer` a 32-bit address; 0 gives an empty text.",
     "5 when the heap doesn't own the address, or the text doesn't end within its block."},
    {"GetAvailablePorts", "Lists the ports of a print server into the panel's port table and returns their number. When the enumeration fails, or the panel was given no spooler, the table stays as it is and the result is what the enumeration reports, normally 0.",
     R"(`ServerName` the server's name, `""` for this machine.)",
     "9 after the first 101 ports, which are kept; 6 above 32768 ports; 5 when a record or a text lies outside what the spooler wrote."},
    {"CancellaTesto", "Empties the message log."},
    {"AggiugiTesto", "Adds a line, as it is, at the end of the message log. The panel never scrolls to it; the window's log follows its end only while it stands there.",
     "`strTesto` any text, also an empty one.",
     "7 when the runtime's list is full: the store's holds 2097152 lines, and 67108864 characters in all."},
    {"chkTest", R"(Shows a quick-test row as passed ("PASS") or failed ("FAIL").)", Detail::kTestRow, Detail::kNoTestRow},
    {"chkTest", R"(Whether a quick-test row shows "PASS".)", Detail::kTestRow, Detail::kNoTestRow},
    {"ClearMains", "Clears quick-test row 5, mains presence."},
    {"ClearTest", "Clears quick-test rows 0 to 4."},
    {"Connected", "Shows whether the link to the amplifier is up."},
    {"Protection", "Shows the protection state of a channel, or of the whole amplifier.", Detail::kChannelOrAll},
    {"Signal", "Shows the signal presence of a channel.", Detail::kChannel},
    {"AbilitaSlave", "Enables or disables the tab of the second pair. While it is disabled, channels 3 and 4 don't count in the amplifier-wide mute lamp.",
     "`blnAbilita` any Boolean, handed to the tab unchanged."},
    {"IdDevice", "The selected amplifier's id: 1 at first, then as a person picked it or the host wrote it."},
    {"IdDevice", "Selects an amplifier id and shows it. It raises no event.", "`intIdDevice` any Integer; the list offers 1 to 99."},
    {"VPPower", "Shows the voltage of a pair's positive power rail: the first three digits.", Detail::kVolts, Detail::kNegative},
    {"VPAux", "Shows the voltage of a pair's positive auxiliary rail: the first three digits.", Detail::kVolts, Detail::kNegative},
    {"Clock", "Shows the clock state of a pair.", Detail::kPair},
    {"Ready", "Shows the ready state of a pair.", Detail::kPair},
    {"VNPower", "Shows the magnitude of a pair's negative power rail: the first three digits.", Detail::kVolts, Detail::kNegative},
    {"VNAux", "Shows the magnitude of a pair's negative auxiliary rail: the first three digits.", Detail::kVolts, Detail::kNegative},
    {"PowerOn", "The power state: false at first, then as the host wrote it."},
    {"MainPresence", "Shows mains presence, on both pair tabs."},
    {"PowerOn", "Shows the power state."},
    {"Volume", "Shows a channel's volume: the first two digits of the magnitude, with a minus sign unless it is 0.",
     "`intChannel` 1 to 4; `intValue` in dB.",
     "6, whatever the channel, for -32768."},
    {"VolumeSlider", "Puts a channel's slider where it stands for this volume: position (30 - volume) / 2, an odd volume counting as the next higher one.",
     "`intChannel` 1 to 4; `intValue` in dB, -30 to 30 for a position that the slider can show.",
     "6, whatever the channel, for 32767 and from -32738 down."},
    {"VolumeSliderButtonDown", "Whether a person holds a channel's slider at this moment. A slider that is disabled or hidden while it is held, be it with its tab, is let go, and reads 0 until it is held anew.", Detail::kChannel},
    {"Temperature", "Shows a pair's temperature: the first three digits.", "`intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, from 0.", Detail::kNegative},
    {"TimerVirtualTemp12", "Whether `SetTemp` repeats the test temperature of pair 1 every 1500 ms; it does at first.", Detail::kTimer},
    {"TimerVirtualTemp34", "Whether `SetTemp` repeats the test temperature of pair 2 every 1500 ms; it does at first.", Detail::kTimer},
    {"DisegnaAssi", "Clears a channel's oscilloscope and draws its grid.", "`intNCanale` 1 to 4; any other channel counts as 1."},
    {"DisegnaFormaDOnda", "Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the array's upper bound over its width.",
     "`intNumCanale` 1 to 4; `arrSamples` samples, of which 9 to 246 lie on the surface from its top to its bottom, with 128 at mid-height. On the panel's own scopes, 95 pixels high, the 0 V line is at 134.",
     "5 for a channel outside 1 to 4; nothing is drawn then. After the grid has been drawn: 9 for an array without a dimension, and for one with several dimensions or a lower bound above 1 when its upper bound is 2 or more; 6 for an upper bound above 32768 or below -32767. For 32768 the samples up to 32767 are joined before error 6."},
    {"Mute", "Mutes or unmutes a channel, or all of them and the amplifier-wide lamp. After every write, whatever the index, that lamp follows when all channels that count agree.",
     "`intChannel` 1 to 4, or 0 for all."},
    {"Mute", "The mute state of a channel, or that of the amplifier-wide lamp.", Detail::kChannelOrAll},
    {"ReadOnly", "-1 keeps a person from changing the amplifier's state, every other value lets them; the displays follow the host all the same. Asking for the internal data stays possible, and so does the information entry behind its password.",
     "`blnValue` any Boolean. In C++ `invoke` converts the Integer 1 to -1, read-only; the Boolean 1 is stored as 1."},
    {"ReadOnly", "The value as it was written, all 16 bits; 0 at first."},
});

/// One row for each event, by dispatch id.
inline constexpr auto kEventContracts = std::to_array<Contract>({
    {"OnOff", "A person asks to switch the amplifier on or off."},
    {"Mute", "A person asks to toggle the mute state of a channel, or of the whole amplifier.", Detail::kChannelOrAll},
    {"reset", Detail::kNever},
    {"AuxBus", Detail::kNever},
    {"DownLoad", "A person asks for the amplifier's internal data."},
    {"PowerBus", Detail::kNever},
    {"VolumeChange", "A person moved a channel's volume slider.", "`intChannel` 1 to 4; `intVolume` in dB, even, -30 to 30."},
    {"SetTemp", "The test temperature of a pair: on every move of its slider, and every 1500 ms while it is not 0. The latter goes on in read-only mode, and while the second pair's tab is disabled, until `TimerVirtualTemp12` or `TimerVirtualTemp34` stops it.",
     "`intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, 0 to 100."},
    {"WaveForm", "A person starts the wave generator for a channel.",
     "`intNChannel` 1 to 4; `intTypeWaveForm` 0 is 100 Hz, 1 is 1 kHz, 2 is 10 kHz, 3 is EIAJ (1 kHz), 4 is line in; `intPosNeg` 1 is the positive input, 2 the negative one."},
    {"GeneralInformations", "Service staff entered new information for the selected amplifier.",
     "`intIdDevice` the amplifier's id; `strInformations` any text; `strSnAmp` and `strSnCard` the serial numbers of the amplifier and of its control module card, not empty."},
    {"QuickTest", Detail::kNever},
    {"ChangeComPort", Detail::kNever},
    {"ChangeAmpId", "A person picked another amplifier id.", "`intIdDevice` 1 to 99."},
    {"Help", Detail::kNever},
});

// clang-format on

static_assert(std::ranges::equal(kMemberContracts, kMembers, {}, &Contract::name, &Member::name));
static_assert(std::ranges::equal(kEventContracts, kEvents, {}, &Contract::name, &Event::name));

constexpr const Contract& contractOf(const Member& member) {
    return kMemberContracts[static_cast<std::size_t>(member.number - 1)];
}
constexpr const Contract& contractOf(const Event& event) {
    return kEventContracts[static_cast<std::size_t>(event.dispatchId - 1)];
}

}  // namespace Orvo
