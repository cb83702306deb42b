#include "Script/argument_types.h"

#include <utility>

#include "Script/literals.h"
#include "Script/text_of.h"

namespace Orvo::Script::Detail {
namespace {

constexpr WordKind kDispatchId{.name = "DISPID"};
constexpr WordKind kArgument{.name = "argument"};
constexpr std::array kMemberKinds{MemberKind::get, MemberKind::let, MemberKind::method};
constexpr auto kMemberKindWords = std::to_array<std::string_view>({"get", "let", "call"});
constexpr WordKind kMemberKind{.choices = kMemberKindWords};

template <class Value>
Value take(Arguments& arguments, const WordKind& kind, ValueType type) {
    return std::get<Value>(literal(arguments.take(kind), type));
}

const Member* memberOf(Long dispatchId, MemberKind kind) {
    const auto* found = std::find_if(kMembers.begin(), kMembers.end(), [=](const Member& member) {
        return member.dispatchId == dispatchId && member.kind == kind;
    });
    return found != kMembers.end() ? found : nullptr;
}

std::vector<Value> takeTyped(Arguments& arguments, const Member& member) {
    std::vector<Value> values;
    for (const Parameter& parameter : member.parameters()) {
        values.push_back(literal(arguments.take({.name = parameter.name}), parameter.type));
    }
    return values;
}

// A 16-bit number is a Boolean as it stands; the panel would make -1 of every one but 0.
Value lateBound(const Word& word, const Member* member, std::size_t position) {
    const bool isKnown = member != nullptr && position < member->parameterCount;
    if (isKnown && member->parameters()[position].type == ValueType::boolean) {
        if (auto raw = literalOrNone(word, ValueType::boolean)) return *std::move(raw);
    }
    return naturalLiteral(word);
}

// Of arguments that are more than any member takes, one too many says all.
std::vector<Value> takeNatural(Arguments& arguments, const Member* member) {
    constexpr std::size_t kMost = std::tuple_size_v<decltype(Member::parameterSlots)> + 1;
    std::vector<Value> values;
    while (!arguments.isAtEnd()) {
        Value value = lateBound(arguments.take(kArgument), member, values.size());
        if (values.size() < kMost) values.push_back(std::move(value));
    }
    return values;
}

}  // namespace

WidgetId takeWidget(Arguments& arguments, const WordKind& kind, bool (*fits)(Kind)) {
    const Word& word = arguments.take(kind);
    const auto widget = Layout::findWidget(word.source);
    if (!widget) {
        throw Misunderstood{"there is no widget " + excerpt(word.source), word.offset};
    }
    const Kind found = Layout::describe(*widget).style.kind;
    if (fits(found)) return *widget;
    throw Misunderstood{excerpt(word.source) + " is a " + std::string(nameOf(found)), word.offset};
}

std::optional<WidgetId> takeWidgetOrScreen(Arguments& arguments, const WordKind& kind) {
    if (arguments.isAtEnd()) return kWidget.take(arguments);
    if (!arguments.isNext(kScreen.front())) return takeWidget(arguments, kind, isAny);
    arguments.take(kind);
    return std::nullopt;
}

std::size_t takeChoice(Arguments& arguments, const WordKind& kind) {
    const Word& word = arguments.take(kind);
    const auto found = std::find(kind.choices.begin(), kind.choices.end(), word.source);
    if (found != kind.choices.end()) return std::size_t(found - kind.choices.begin());
    throw Misunderstood{excerpt(word.source) + " is none of " + textOf(kind), word.offset};
}

Long takeNumber(Arguments& arguments, const WordKind& kind, Long lowest, Long highest) {
    const Word& word = arguments.take(kind);
    const Long value = std::get<Long>(literal(word, ValueType::longInteger));
    if (value >= lowest && value <= highest) return value;
    throw Misunderstood{
        textOf(kind) + " is " + std::to_string(lowest) + " to " + std::to_string(highest),
        word.offset};
}

int takePosition(Arguments& arguments, const WordKind& kind) {
    return take<Integer>(arguments, kind, ValueType::integer);
}

String takeText(Arguments& arguments, const WordKind& kind) {
    return take<String>(arguments, kind, ValueType::string);
}

std::optional<String> takeAnswer(Arguments& arguments, const WordKind& kind) {
    if (!arguments.isNext(kCancel.front())) return takeText(arguments, kind);
    arguments.take(kind);
    return std::nullopt;
}

Runtime::Ports takePorts(Arguments& arguments, const WordKind& kind) {
    Runtime::Ports ports;
    while (!arguments.isAtEnd()) ports.emplace_back().PortName = takeText(arguments, kind);
    return ports;
}

std::reference_wrapper<const Event> takeEvent(Arguments& arguments, const WordKind& kind) {
    const Word& word = arguments.take(kind);
    const auto* found = std::find_if(kEvents.begin(), kEvents.end(),
                                     [&](const Event& row) { return row.name == word.source; });
    if (found != kEvents.end()) return *found;
    throw Misunderstood{"there is no event " + excerpt(word.source), word.offset};
}

std::vector<std::string_view> eventNames(const Grammar& /*grammar*/) {
    std::vector<std::string_view> names;
    names.reserve(kEvents.size());
    for (const Event& event : kEvents) names.push_back(event.name);
    return names;
}

Long takeMember(Arguments& arguments, const WordKind& kind) {
    const Word& word = arguments.take(kind);
    if (const auto dispatchId = dispatchIdOf(word.source)) return *dispatchId;
    throw Misunderstood{"there is no member " + excerpt(word.source), word.offset};
}

Call takeCall(Arguments& arguments, const WordKind& name, MemberKind kind) {
    const Long dispatchId = takeMember(arguments, name);
    const Member* member = memberOf(dispatchId, kind);
    auto values =
        member != nullptr ? takeTyped(arguments, *member) : takeNatural(arguments, nullptr);
    return {dispatchId, kind, std::move(values)};
}

Call takeLateCall(Arguments& arguments, const WordKind& /*kind*/) {
    const Long dispatchId = take<Long>(arguments, kDispatchId, ValueType::longInteger);
    const MemberKind kind = takeOneOf<kMemberKinds>(arguments, kMemberKind);
    auto values = takeNatural(arguments, memberOf(dispatchId, kind));
    return {dispatchId, kind, std::move(values)};
}

}  // namespace Orvo::Script::Detail
