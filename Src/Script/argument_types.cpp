#include "Script/argument_types.h"

#include <utility>

namespace Orvo::Script {
namespace {

constexpr std::array kMemberKinds{MemberKind::get, MemberKind::let, MemberKind::method};
constexpr Long kHighestKeyCode = 0xFFFF;

String takeText(Arguments& arguments, std::string_view what) {
    return std::get<String>(literal(arguments.take(what), ValueType::string));
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
        values.push_back(literal(arguments.take(parameter.name), parameter.type));
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

std::vector<Value> takeNatural(Arguments& arguments, const Member* member) {
    std::vector<Value> values;
    while (!arguments.isAtEnd()) {
        values.push_back(lateBound(arguments.take("argument"), member, values.size()));
    }
    return values;
}

}  // namespace

WidgetId takeWidget(Arguments& arguments, std::string_view what, std::span<const Kind> kinds) {
    const Word& word = arguments.take(what);
    const auto widget = Layout::findWidget(word.source);
    if (!widget) {
        throw Misunderstood{"there is no widget " + excerpt(word.source), word.offset};
    }
    const Kind kind = Layout::describe(*widget).style.kind;
    if (kinds.empty() || std::find(kinds.begin(), kinds.end(), kind) != kinds.end()) {
        return *widget;
    }
    throw Misunderstood{excerpt(word.source) + " is a " + std::string(nameOf(kind)), word.offset};
}

AnyWidget AnyWidget::take(Arguments& arguments) { return {takeWidget(arguments, kWords, {})}; }

Touchable Touchable::take(Arguments& arguments) {
    using enum Kind;
    static constexpr std::array kKinds{label, shape, line,    frame, button, option, check,
                                       combo, list,  picture, image, tabs,   digit,  slider};
    return {takeWidget(arguments, kWords, kKinds)};
}

ItemHolder ItemHolder::take(Arguments& arguments) {
    return {takeWidget(arguments, kWords, std::array{Kind::combo, Kind::list})};
}

Slider Slider::take(Arguments& arguments) {
    return {takeWidget(arguments, kWords, std::array{Kind::slider})};
}

Combo Combo::take(Arguments& arguments) {
    return {takeWidget(arguments, kWords, std::array{Kind::combo})};
}

Picture Picture::take(Arguments& arguments) {
    return {takeWidget(arguments, kWords, std::array{Kind::picture})};
}

Shown Shown::take(Arguments& arguments) {
    if (!arguments.isNext(kScreen)) return {AnyWidget::take(arguments).id};
    arguments.take(kWords);
    return {std::nullopt};
}

std::size_t takeChoice(Arguments& arguments, std::string_view words) {
    const Word& word = arguments.take(words);
    for (std::size_t choice = 0, at = 0; at <= words.size(); ++choice) {
        const std::size_t end = std::min(words.find('|', at), words.size());
        if (word.source == words.substr(at, end - at)) return choice;
        at = end + 1;
    }
    throw Misunderstood{excerpt(word.source) + " is none of " + std::string(words), word.offset};
}

Button Button::take(Arguments& arguments) {
    if (arguments.isAtEnd()) return {Runtime::MouseButton::left};
    const std::string_view choices = kWords.substr(1, kWords.size() - 2);
    return {static_cast<Runtime::MouseButton>(takeChoice(arguments, choices))};
}

LayoutProperty LayoutProperty::take(Arguments& arguments) {
    return {static_cast<Property>(takeChoice(arguments, kWords))};
}

Truth Truth::take(Arguments& arguments) { return {takeChoice(arguments, kWords) == 0}; }

PointerNumber PointerNumber::take(Arguments& arguments) {
    using enum Widgets::Pointer;
    return {takeChoice(arguments, kWords) == 0 ? standard : hourglass};
}

Long takeNumber(Arguments& arguments, std::string_view what, Long lowest, Long highest) {
    const Word& word = arguments.take(what);
    const Long value = std::get<Long>(literal(word, ValueType::longInteger));
    if (value >= lowest && value <= highest) return value;
    throw Misunderstood{
        std::string(what) + " is " + std::to_string(lowest) + " to " + std::to_string(highest),
        word.offset};
}

Position Position::take(Arguments& arguments) {
    return {std::get<Integer>(literal(arguments.take(kWords), ValueType::integer))};
}

KeyCode KeyCode::take(Arguments& arguments) {
    return {static_cast<Integer>(takeNumber(arguments, kWords, 0, kHighestKeyCode))};
}

TabNumber TabNumber::take(Arguments& arguments) {
    constexpr Long kLast = Long{Layout::kTabCaptions.size()} - 1;
    return {static_cast<Integer>(takeNumber(arguments, kWords, 0, kLast))};
}

Milliseconds Milliseconds::take(Arguments& arguments) {
    const Long time = takeNumber(arguments, kWords, 0, std::numeric_limits<Long>::max());
    return {std::chrono::milliseconds(time)};
}

Text Text::take(Arguments& arguments) { return {takeText(arguments, kWords)}; }
File File::take(Arguments& arguments) { return {takeText(arguments, kWords)}; }

Answer Answer::take(Arguments& arguments) {
    const Word& word = arguments.take(kWords);
    if (word.source == "cancel") return {std::nullopt};
    return {std::get<String>(literal(word, ValueType::string))};
}

EventName EventName::take(Arguments& arguments) {
    const Word& word = arguments.take(kWords);
    const auto* found = std::find_if(kEvents.begin(), kEvents.end(),
                                     [&](const Event& row) { return row.name == word.source; });
    if (found != kEvents.end()) return {found};
    throw Misunderstood{"there is no event " + excerpt(word.source), word.offset};
}

MemberName MemberName::take(Arguments& arguments) {
    const Word& word = arguments.take(kWords);
    if (const auto dispatchId = dispatchIdOf(word.source)) return {*dispatchId};
    throw Misunderstood{"there is no member " + excerpt(word.source), word.offset};
}

Nested Nested::take(Arguments& arguments) { return {arguments.takeCommand()}; }

Call takeCall(Arguments& arguments, MemberKind kind) {
    const Long dispatchId = MemberName::take(arguments).dispatchId;
    const Member* member = memberOf(dispatchId, kind);
    auto values =
        member != nullptr ? takeTyped(arguments, *member) : takeNatural(arguments, nullptr);
    return {dispatchId, kind, std::move(values)};
}

LateCall LateCall::take(Arguments& arguments) {
    const Long dispatchId =
        std::get<Long>(literal(arguments.take("DISPID"), ValueType::longInteger));
    const MemberKind kind = kMemberKinds[takeChoice(arguments, "get|let|call")];
    auto values = takeNatural(arguments, memberOf(dispatchId, kind));
    return {{dispatchId, kind, std::move(values)}};
}

}  // namespace Orvo::Script
