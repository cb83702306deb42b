#include <algorithm>
#include <span>
#include <string_view>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Reference/bindings.h"
#include "Reference/header_comments.h"
#include "Script/help.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kBeginning = R"(#ifndef ORVO_ORVO_IDS_H
#define ORVO_ORVO_IDS_H

// Generated from the tables: cmake --build BUILD --target orvo-make-reference

/// @file
/// The panel's members and events in numbers. They are part of the contract: none ever changes.

// NOLINTBEGIN(readability-identifier-naming)
)";
constexpr std::string_view kEnd = R"(
// NOLINTEND(readability-identifier-naming)

#endif
)";

std::string list(std::span<const Parameter> parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) {
        text.append(text.empty() ? "" : ", ").append(nameOf(parameter.type)).append(" ");
        text.append(parameter.name);
    }
    return '(' + text + ')';
}

// "let (Integer intChannel, Boolean blnValue): Mutes or unmutes …"
std::string usageOf(const Member& member) {
    std::string text(nameOf(member.kind));
    text.append(" ").append(list(member.parameters()));
    if (member.result != ValueType::none) text.append(" gives ").append(nameOf(member.result));
    return text + ": " + contractText(contractOf(member), ' ') + '\n';
}

std::string constant(const std::string& name, const std::string& number, const std::string& text) {
    return wrapped(text, "    ///") + "    ORVO_" + name + " = " + number + ",\n";
}

std::string enumeration(const std::string& name, const std::string& text,
                        const std::string& constants) {
    return '\n' + wrapped(text, "///") + "enum " + name + " {\n" + constants + "};\n";
}

std::string members() {
    std::string constants;
    for (const Member& member : kMembers) {
        const auto isOfThis = [&](const Member& other) { return other.name == member.name; };
        if (&*std::ranges::find_if(kMembers, isOfThis) != &member) continue;
        std::string text;
        for (const Member& other : kMembers) text += isOfThis(other) ? usageOf(other) : "";
        constants +=
            constant("MEMBER_" + std::string(member.name), dispatchIdText(member.dispatchId), text);
    }
    return enumeration("orvo_member", "The members, by the ids that `orvo_invoke` takes.",
                       constants);
}

std::string events() {
    std::string constants;
    for (const Event& event : kEvents) {
        constants +=
            constant("EVENT_" + std::string(event.name), std::to_string(event.dispatchId),
                     list(event.parameters()) + ": " + contractText(contractOf(event), ' '));
    }
    return enumeration("orvo_event", "The events, by the ids that handlers are told.", constants);
}

std::string inCapitals(std::string_view name) {
    std::string text;
    for (const char letter : name)
        text += letter == ' ' ? '_' : static_cast<char>(letter & ~('a' - 'A'));
    return text;
}

std::string kinds() {
    using enum MemberKind;
    std::string constants;
    for (const MemberKind kind : {method, get, let}) {
        constants += constant(inCapitals(nameOf(kind)), std::to_string(static_cast<int>(kind)), "");
    }
    return enumeration("orvo_kind", "What is done with a member.", constants);
}

std::string types() {
    std::string constants = constant("NONE", "0", "");
    for (auto type = ValueType::boolean; type <= ValueType::array;
         type = static_cast<ValueType>(static_cast<int>(type) + 1)) {
        constants += constant(inCapitals(nameOf(type)), std::to_string(static_cast<int>(type)), "");
    }
    return enumeration("orvo_type", "The types of values.", constants);
}

}  // namespace

std::string cIds() {
    return std::string(kBeginning) + kinds() + types() + members() + events() + std::string(kEnd);
}

}  // namespace Orvo::Script
