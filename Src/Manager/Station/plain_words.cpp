#include "Manager/Station/plain_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "Manager/Station/signal_names.h"
#include "Script/text_of.h"

namespace Orvo::Manager {
namespace {

// What the first argument counts.
enum class Counts : std::uint8_t { nothing, amplifiers, channels, pairs, tests };

// "#" stands for what the first argument counts, "%" for the value, which is the second argument or
// the only one, and "$" for a third.
struct Words {
    Counts counts;
    std::string_view text;
    std::string_view whenZero;  // and for false

    constexpr Words(Counts counted, std::string_view always)
        : counts(counted), text(always), whenZero(always) {}
    constexpr Words(Counts counted, std::string_view otherwise, std::string_view zero)
        : counts(counted), text(otherwise), whenZero(zero) {}
};

struct MemberRow {
    const Member* member;
    Words words;
};

struct EventRow {
    const Event* event;
    Words words;
};

template <class... Arguments>
consteval const Member* the(std::string_view name) {
    return &memberNamed<Arguments...>(name);
}

using enum Counts;
using I = Integer;
using B = Boolean;

// clang-format off
constexpr auto kMemberRows = std::to_array<MemberRow>({
    {the<>("CancellaTesto"),                    {nothing, "Message log emptied"}},
    {the<String>("AggiugiTesto"),               {nothing, "Message %"}},
    {the<I, B>("chkTest"),                      {tests, "# passed", "# failed"}},
    {the<>("ClearMains"),                       {nothing, "Mains presence test cleared"}},
    {the<>("ClearTest"),                        {nothing, "Other tests cleared"}},
    {the<B>("Connected"),                       {nothing, "Link up", "Link down"}},
    {the<I, B>("Protection"),                   {channels, "Protection of # tripped", "Protection of # clear"}},
    {the<I, B>("Signal"),                       {channels, "Signal on #", "No signal on #"}},
    {the<B>("AbilitaSlave"),                    {nothing, "Channels 3 and 4 present", "Channels 3 and 4 missing"}},
    {the<I>("IdDevice"),                        {amplifiers, "# selected"}},
    {the<I, I>("VPPower"),                      {pairs, "Positive power bus of # % V"}},
    {the<I, I>("VPAux"),                        {pairs, "Positive aux bus of # % V"}},
    {the<I, I>("VNPower"),                      {pairs, "Negative power bus of # % V"}},
    {the<I, I>("VNAux"),                        {pairs, "Negative aux bus of # % V"}},
    {the<I, B>("Clock"),                        {pairs, "Clock of # present", "Clock of # missing"}},
    {the<I, B>("Ready"),                        {pairs, "# ready", "# not ready"}},
    {the<B>("MainPresence"),                    {nothing, "Mains present", "Mains missing"}},
    {the<B>("PowerOn"),                         {nothing, "Power on", "Power off"}},
    {the<I, I>("Volume"),                       {channels, "Volume of # % dB"}},
    {the<I, I>("VolumeSlider"),                 {channels, "Volume slider of # to % dB"}},
    {the<I, I>("Temperature"),                  {pairs, "Temperature of # % °C"}},
    {the<B>("TimerVirtualTemp12"),              {nothing, "Thermal test of channels 1 and 2 possible", "Thermal test of channels 1 and 2 not possible"}},
    {the<B>("TimerVirtualTemp34"),              {nothing, "Thermal test of channels 3 and 4 possible", "Thermal test of channels 3 and 4 not possible"}},
    {the<I>("DisegnaAssi"),                     {channels, "Scope of # cleared"}},
    {the<I, IntegerArray>("DisegnaFormaDOnda"), {channels, "Trace on the scope of #"}},
    {the<I, B>("Mute"),                         {channels, "# muted", "# unmuted"}},
    {the<B>("ReadOnly"),                        {nothing, "Read-only mode on", "Read-only mode off"}},
});

constexpr auto kEventRows = std::to_array<EventRow>({
    {&eventNamed("OnOff"),                      {nothing, "Asked to switch on or off"}},
    {&eventNamed("Mute"),                       {channels, "Asked to mute or unmute #"}},
    {&eventNamed("DownLoad"),                   {nothing, "Asked for the internal data"}},
    {&eventNamed("VolumeChange"),               {channels, "Asked for % dB on #"}},
    {&eventNamed("SetTemp"),                    {pairs, "Asked for a thermal test of # at % °C", "Asked to end the thermal test of #"}},
    {&eventNamed("WaveForm"),                   {channels, "Asked for % on the $ input of #"}},
    {&eventNamed("GeneralInformations"),        {amplifiers, "Information entered for #"}},
    {&eventNamed("ChangeAmpId"),                {amplifiers, "# picked"}},
});
// clang-format on

// A member that only answers has no words, nor has one that changes nothing.
constexpr auto kWithoutWords =
    std::to_array<std::string_view>({"TrimStr", "LPSTRtoSTRING", "GetAvailablePorts"});
static_assert(kMemberRows.size() + kWithoutWords.size() ==
              std::size_t(std::ranges::count_if(kMembers, [](const Member& member) {
                  return member.kind != MemberKind::get;
              })));

constexpr auto kPairNames =
    std::to_array<std::string_view>({"channels 1 and 2", "channels 3 and 4"});
constexpr auto kTestNames = std::to_array<std::string_view>(
    {"temperature test", "positive power bus test", "negative power bus test",
     "positive aux bus test", "negative aux bus test", "mains presence test"});
constexpr auto kInputNames = std::to_array<std::string_view>({"positive", "negative"});

template <std::size_t kCount>
std::string oneOf(const std::array<std::string_view, kCount>& names, int place,
                  std::string_view otherwise, Integer number) {
    if (place >= 0 && std::size_t(place) < kCount) return std::string(names[std::size_t(place)]);
    return std::string(otherwise) + std::to_string(number);
}

std::string counted(Counts counts, Integer number) {
    switch (counts) {
        case channels:
            return number == 0 ? "the whole amplifier" : "channel " + std::to_string(number);
        case pairs:
            return oneOf(kPairNames, number - 1, "pair ", number);
        case tests:
            return oneOf(kTestNames, number, "test ", number);
        default:
            return "amplifier " + std::to_string(number);
    }
}

bool isZero(const Value& value) {
    if (const auto* truth = std::get_if<Boolean>(&value)) return !bool(*truth);
    const auto* number = std::get_if<Integer>(&value);
    return number != nullptr && *number == 0;
}

Integer numberIn(const Value& value) { return std::get<Integer>(value); }

std::string valueIn(std::span<const Value> arguments) {
    const bool isWave = arguments.size() == 3;
    if (isWave)
        return oneOf(kSignalNames, numberIn(arguments[1]), "signal ", numberIn(arguments[1]));
    return Script::textOf(arguments.back());
}

std::string part(char sign, Counts counts, std::span<const Value> arguments) {
    switch (sign) {
        case '#':
            return counted(counts, numberIn(arguments[0]));
        case '%':
            return valueIn(arguments);
        case '$':
            return oneOf(kInputNames, numberIn(arguments[2]) - 1, "", numberIn(arguments[2]));
        default:
            return {sign};
    }
}

std::string filled(const Words& words, std::span<const Value> arguments) {
    const bool hasZero = !arguments.empty() && isZero(arguments.back());
    std::string text;
    for (const char sign : hasZero ? words.whenZero : words.text) {
        text += part(sign, words.counts, arguments);
    }
    if (text[0] >= 'a' && text[0] <= 'z') text[0] = char(text[0] - 'a' + 'A');
    return text;
}

}  // namespace

std::string inWords(const Member& member, std::span<const Value> arguments) {
    const auto* row = std::ranges::find(kMemberRows, &member, &MemberRow::member);
    return row == kMemberRows.end() ? Script::commandText(member, arguments)
                                    : filled(row->words, arguments);
}

std::string inWords(const Event& event, std::span<const Value> arguments) {
    const auto* row = std::ranges::find(kEventRows, &event, &EventRow::event);
    return row == kEventRows.end() ? Script::eventText(event, arguments)
                                   : filled(row->words, arguments);
}

}  // namespace Orvo::Manager
