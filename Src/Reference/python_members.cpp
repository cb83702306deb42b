#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Orvo/values/ignoring_case.h"
#include "Reference/bindings.h"
#include "Reference/header_comments.h"
#include "Script/help.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kPrologue =
    R"("""Generated from the tables: cmake --build BUILD --target orvo-make-reference"""

from __future__ import annotations

from collections.abc import Callable, Sequence

from ._core import Core, Indexed, Subscription


class Members(Core):
    """The panel's members and events, wherever the panel is."""
)";

using Parameters = std::span<const Parameter>;

std::string pythonType(ValueType type) {
    constexpr auto kTypes =
        std::to_array<const char*>({"None", "bool", "int", "int", "float", "str", "Sequence[int]"});
    return kTypes[static_cast<std::size_t>(type)];
}

std::string typed(Parameters parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) {
        text.append(", ").append(parameter.name).append(": ").append(pythonType(parameter.type));
    }
    return text;
}

std::string names(Parameters parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) text.append(", ").append(parameter.name);
    return text;
}

struct Function {
    std::string name;
    std::string parameters;
    std::string result;
    std::string documentation;
    std::string body;
};

std::string textOf(const Function& function) {
    std::string text = "    def " + function.name + "(self" + function.parameters + ") -> " +
                       function.result + ":\n";
    if (!function.documentation.empty()) {
        text +=
            "        \"\"\"\n" + wrapped(function.documentation, "       ") + "        \"\"\"\n";
    }
    return text + "        " + function.body + '\n';
}

std::string contractOn(const Member& member) { return contractText(contractOf(member), ' '); }

std::string method(const Member& member) {
    const std::string type = pythonType(member.result);
    const std::string call = member.result == ValueType::none ? "self._do(" : "return self._call(";
    const std::string given = member.result == ValueType::none ? "" : ", " + type;
    return '\n' +
           textOf({std::string(member.name), typed(member.parameters()), type, contractOn(member),
                   call + dispatchIdText(member.dispatchId) + given + names(member.parameters()) +
                       ")"});
}

const Member* accessor(std::string_view name, MemberKind kind) {
    const auto* const found = std::ranges::find_if(
        kMembers, [&](const Member& member) { return member.name == name && member.kind == kind; });
    return found != kMembers.end() ? found : nullptr;
}

// Of both accessors, when there are two.
std::string contractOn(const Member* get, const Member* let) {
    if (get == nullptr) return contractOn(*let) + " It can only be written.";
    if (let == nullptr) return contractOn(*get) + " It can only be read.";
    return "Written: " + contractOn(*let) + "\nRead: " + contractOn(*get);
}

std::string setter(const Member& let) {
    const std::string name(let.name);
    return "\n    @" + name + ".setter\n" +
           textOf({name, typed(let.parameters()), "None", "",
                   "self._let(" + dispatchIdText(let.dispatchId) + names(let.parameters()) + ")"});
}

// A property that can only be written is read all the same: the panel refuses it.
std::string property(const Member& either) {
    const Member* const get = accessor(either.name, MemberKind::get);
    const Member* const let = accessor(either.name, MemberKind::let);
    const bool isGet = either.kind == MemberKind::get;
    const std::string type = pythonType(isGet ? either.result : either.parameters().back().type);
    const bool isIndexed = either.parameterCount > (isGet ? 0U : 1U);
    const std::string index =
        isIndexed ? "By " + std::string(either.parameters()[0].name) + ".\n" : "";
    const std::string text =
        "\n    @property\n" +
        textOf({std::string(either.name), "", isIndexed ? "Indexed[" + type + "]" : type,
                index + contractOn(get, let),
                (isIndexed ? "return Indexed(self, " : "return self._get(") +
                    dispatchIdText(either.dispatchId) + ", " + type + ")"});
    return let != nullptr && !isIndexed ? text + setter(*let) : text;
}

std::string memberMethods() {
    std::string text;
    for (const Member& member : kMembers) {
        const auto* const first = std::ranges::find(kMembers, member.name, &Member::name);
        if (first != &member) continue;
        text += member.kind == MemberKind::method ? method(member) : property(member);
    }
    return text;
}

// "VolumeChange" is "on_volume_change".
std::string subscriberTo(const Event& event) {
    std::string text = "on_";
    for (const char letter : event.name) {
        if (lowerCase(letter) != letter && text.back() != '_') text += '_';
        text += lowerCase(letter);
    }
    return text;
}

std::string types(Parameters parameters) {
    std::string text;
    for (const Parameter& parameter : parameters)
        text.append(text.empty() ? "" : ", ").append(pythonType(parameter.type));
    return text;
}

std::string subscribers() {
    std::string text;
    for (const Event& event : kEvents) {
        const std::string given(event.parameterCount > 0 ? names(event.parameters()).substr(2)
                                                         : "");
        text +=
            '\n' + textOf({subscriberTo(event),
                           ", handler: Callable[[" + types(event.parameters()) + "], object]",
                           "Subscription",
                           "handler(" + given + "): " + contractText(contractOf(event), ' '),
                           "return self._on(" + std::to_string(event.dispatchId) + ", handler)"});
    }
    return text;
}

std::string eventIds() {
    std::string text = "\n\nEVENT_IDS = {\n";
    for (const Event& event : kEvents) {
        text.append("    \"").append(event.name).append("\": ");
        text.append(std::to_string(event.dispatchId)).append(",\n");
    }
    return text + "}\n";
}

}  // namespace

std::string pythonMembers() {
    return std::string(kPrologue) + memberMethods() + subscribers() + eventIds();
}

}  // namespace Orvo::Script
