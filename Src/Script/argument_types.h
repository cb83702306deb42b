#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "Orvo/core/event_table.h"
#include "Orvo/core/late_binding.h"
#include "Orvo/layout/layout.h"
#include "Orvo/ports/port_records.h"
#include "Orvo/store/deed.h"
#include "Orvo/widgets/widget_tree.h"
#include "Script/command.h"

// What commands take: how the words are called, and how they are read.
namespace Orvo::Script {

using Widgets::Kind;
using Widgets::WidgetId;

template <class Value>
struct Argument : WordKind {
    /// Throws Misunderstood.
    Value (*read)(Arguments& arguments, const WordKind& kind);
    Value take(Arguments& arguments) const { return read(arguments, *this); }
};

/// A call of a member by dispatch id, with its arguments.
struct Call {
    Long dispatchId;
    MemberKind kind;
    std::vector<Value> arguments;
};

enum class LayoutProperty : std::uint8_t { enabled, visible };

namespace Detail {

template <auto kFirst, auto... kOthers>
constexpr bool isOneOf(decltype(kFirst) value) {
    return value == kFirst || ((value == kOthers) || ...);
}

template <class Value>
constexpr bool isAny(Value /*value*/) {
    return true;
}

constexpr bool isOnScreen(Kind kind) { return kind != Kind::timer; }

template <bool (*kFits)(Kind)>
std::vector<std::string_view> widgetNames(const Grammar& /*grammar*/) {
    std::vector<std::string_view> names;
    for (const Layout::Widget& widget : Layout::kWidgets) {
        if (kFits(widget.style.kind)) names.push_back(widget.name);
    }
    return names;
}

WidgetId takeWidget(Arguments& arguments, const WordKind& kind, bool (*fits)(Kind));

template <bool (*kFits)(Kind)>
constexpr Argument<WidgetId> widget(std::string_view name) {
    return {{.name = name, .names = widgetNames<kFits>},
            [](Arguments& arguments, const WordKind& kind) {
                return takeWidget(arguments, kind, kFits);
            }};
}

template <bool (*kFits)(MemberKind)>
std::vector<std::string_view> memberNames(const Grammar& /*grammar*/) {
    std::vector<std::string_view> names;
    for (const Member& member : kMembers) {
        if (kFits(member.kind)) names.push_back(member.name);
    }
    return names;
}

Long takeMember(Arguments& arguments, const WordKind& kind);

template <bool (*kFits)(MemberKind)>
constexpr Argument<Long> kMemberName{{.name = "NAME", .names = memberNames<kFits>}, takeMember};

/// The arguments are literals of the parameters' types; nothing is known of them when the member
/// doesn't exist with this kind, which is for the panel to say.
Call takeCall(Arguments& arguments, const WordKind& name, MemberKind kind);

template <MemberKind kKind>
constexpr Argument<Call> namedCall(std::string_view words) {
    return {{.name = words}, [](Arguments& arguments, const WordKind& /*kind*/) {
                return takeCall(arguments, kMemberName<isOneOf<kKind>>, kKind);
            }};
}

/// The place of the word among the choices.
std::size_t takeChoice(Arguments& arguments, const WordKind& kind);

template <const auto& kValues>
auto takeOneOf(Arguments& arguments, const WordKind& kind) {
    return kValues[takeChoice(arguments, kind)];
}

template <const auto& kValues>
auto takeOneOfOrFirst(Arguments& arguments, const WordKind& kind) {
    return arguments.isAtEnd() ? kValues[0] : takeOneOf<kValues>(arguments, kind);
}

Long takeNumber(Arguments& arguments, const WordKind& kind, Long lowest, Long highest);

template <class Value, Long kLowest, Long kHighest>
constexpr Argument<Value> number(std::string_view name) {
    return {{.name = name}, [](Arguments& arguments, const WordKind& kind) {
                return Value(takeNumber(arguments, kind, kLowest, kHighest));
            }};
}

std::optional<WidgetId> takeWidgetOrScreen(Arguments& arguments, const WordKind& kind);
int takePosition(Arguments& arguments, const WordKind& kind);
String takeText(Arguments& arguments, const WordKind& kind);
std::optional<String> takeAnswer(Arguments& arguments, const WordKind& kind);
Runtime::Ports takePorts(Arguments& arguments, const WordKind& kind);
std::reference_wrapper<const Event> takeEvent(Arguments& arguments, const WordKind& kind);
std::vector<std::string_view> eventNames(const Grammar& grammar);
Call takeLateCall(Arguments& arguments, const WordKind& kind);

inline constexpr std::array kButtons{Runtime::MouseButton::left, Runtime::MouseButton::right,
                                     Runtime::MouseButton::middle};
inline constexpr auto kButtonNames = std::to_array<std::string_view>({"left", "right", "middle"});
inline constexpr std::array kProperties{LayoutProperty::enabled, LayoutProperty::visible};
inline constexpr auto kPropertyNames = std::to_array<std::string_view>({"enabled", "visible"});
inline constexpr std::array kTruths{true, false};
inline constexpr auto kTruthNames = std::to_array<std::string_view>({"true", "false"});
inline constexpr std::array kPointers{Widgets::Pointer::standard, Widgets::Pointer::hourglass};
inline constexpr auto kPointerNumbers = std::to_array<std::string_view>({"0", "11"});
inline constexpr auto kScreen = std::to_array<std::string_view>({"Screen"});
inline constexpr auto kCancel = std::to_array<std::string_view>({"cancel"});

}  // namespace Detail

inline constexpr auto kWidget = Detail::widget<Detail::isAny>("WIDGET");
inline constexpr auto kOnScreen = Detail::widget<Detail::isOnScreen>("WIDGET");
inline constexpr auto kItemHolder =
    Detail::widget<Detail::isOneOf<Kind::combo, Kind::list>>("WIDGET");
inline constexpr auto kSlider = Detail::widget<Detail::isOneOf<Kind::slider>>("SLIDER");
inline constexpr auto kCombo = Detail::widget<Detail::isOneOf<Kind::combo>>("COMBO");
inline constexpr auto kPicture = Detail::widget<Detail::isOneOf<Kind::picture>>("PICTURE");
/// None is the screen.
inline constexpr Argument<std::optional<WidgetId>> kWidgetOrScreen{
    {.name = "WIDGET", .choices = Detail::kScreen, .names = kWidget.names},
    Detail::takeWidgetOrScreen};

inline constexpr Argument<Runtime::MouseButton> kButton{
    {.choices = Detail::kButtonNames, .presence = WordKind::Presence::optional},
    Detail::takeOneOfOrFirst<Detail::kButtons>};
inline constexpr Argument<LayoutProperty> kProperty{{.choices = Detail::kPropertyNames},
                                                    Detail::takeOneOf<Detail::kProperties>};
inline constexpr Argument<bool> kTruth{{.choices = Detail::kTruthNames},
                                       Detail::takeOneOf<Detail::kTruths>};
inline constexpr Argument<Widgets::Pointer> kPointer{{.choices = Detail::kPointerNumbers},
                                                     Detail::takeOneOf<Detail::kPointers>};

inline constexpr auto kKeyCode = Detail::number<int, 0, 0xFFFF>("CODE");
inline constexpr auto kTab =
    Detail::number<int, 0, Long{Layout::kTabCaptions.size()} - 1>("NUMBER");
inline constexpr auto kMilliseconds =
    Detail::number<std::chrono::milliseconds, 0, std::numeric_limits<Long>::max()>("MILLISECONDS");
inline constexpr Argument<int> kPosition{{.name = "POSITION"}, Detail::takePosition};

inline constexpr Argument<String> kText{{.name = "TEXT"}, Detail::takeText};
inline constexpr Argument<String> kFile{{.name = "FILE"}, Detail::takeText};
/// A text that is typed into a prompt; none cancels it.
inline constexpr Argument<std::optional<String>> kAnswer{
    {.name = "TEXT", .choices = Detail::kCancel}, Detail::takeAnswer};
inline constexpr Argument<Runtime::Ports> kPorts{
    {.name = "NAME …", .presence = WordKind::Presence::optional}, Detail::takePorts};

inline constexpr Argument<std::reference_wrapper<const Event>> kEvent{
    {.name = "EVENT", .names = Detail::eventNames}, Detail::takeEvent};
inline constexpr auto kMember = Detail::kMemberName<Detail::isAny>;
inline constexpr auto kLet = Detail::namedCall<MemberKind::let>("NAME [INDEX] VALUE");
inline constexpr auto kGet = Detail::namedCall<MemberKind::get>("NAME [INDEX]");
inline constexpr auto kCall = Detail::namedCall<MemberKind::method>("NAME [ARGUMENT …]");
/// A late-bound call; the panel converts the arguments.
inline constexpr Argument<Call> kLateCall{{.name = "DISPID get|let|call [ARGUMENT …]"},
                                          Detail::takeLateCall};
/// A command within a command.
inline constexpr Argument<ParsedCommand> kNested{
    {.name = "COMMAND …"},
    [](Arguments& arguments, const WordKind& /*kind*/) { return arguments.takeCommand(); }};

}  // namespace Orvo::Script
