#include "Reference/widget_interface.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Reference/header_comments.h"
#include "Reference/widget_interface_prose.h"
#include "Script/help.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kClass = "PanelInterface::";

struct Words {
    std::string_view argument{};
    std::string_view result{};
    std::string_view toPanel{};  ///< what makes a panel's value of it, where that is needed
    std::string_view fromPanel{};
};

// In the order of ValueType.
constexpr auto kWords = std::to_array<Words>({
    {.result = "void"},
    {.argument = "bool ", .result = "bool", .fromPanel = "bool"},
    {.argument = "int ", .result = "int", .toPanel = "toInteger"},
    {.argument = "int ", .result = "int"},
    {.argument = "double ", .result = "double"},
    {.argument = "const QString& ", .result = "QString", .toPanel = "fromQt", .fromPanel = "toQt"},
    {.argument = "const QList<short>& ", .toPanel = "toArray"},
});

const Words& wordsOf(ValueType type) { return kWords.at(static_cast<std::size_t>(type)); }

bool isCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

std::string withSmallInitial(std::string_view name) {
    std::string text(name);
    text.front() = static_cast<char>(std::tolower(text.front()));
    return text;
}

std::string after(const char* verb, std::string_view name) {
    std::string text(name);
    text.front() = static_cast<char>(std::toupper(text.front()));
    return verb + text;
}

// "channel" for "intChannel".
std::string nameOf(const Parameter& parameter) {
    constexpr std::size_t kPrefix = 3;
    const std::string_view name = parameter.name;
    const bool hasPrefix = name.size() > kPrefix && isCapital(name[kPrefix]) &&
                           std::ranges::none_of(name.substr(0, kPrefix), isCapital);
    return withSmallInitial(hasPrefix ? name.substr(kPrefix) : name);
}

std::string nameOf(const Member& member) {
    if (member.kind == MemberKind::let) return after("set", member.name);
    if (member.result == ValueType::boolean) return after("is", member.name);
    return withSmallInitial(member.name);
}

std::string call(std::string_view function, const std::string& argument) {
    if (function.empty()) return argument;
    return std::string(function).append("(").append(argument).append(")");
}

template <class Text>
std::string listed(std::span<const Parameter> parameters, Text text) {
    std::string list;
    for (const Parameter& parameter : parameters) {
        list.append(list.empty() ? "" : ", ").append(text(parameter));
    }
    return '(' + list + ')';
}

std::string declared(std::span<const Parameter> parameters) {
    return listed(parameters, [](const Parameter& parameter) {
        return std::string(wordsOf(parameter.type).argument) + nameOf(parameter);
    });
}

std::string signature(const Member& member, std::string_view scope) {
    std::string text(wordsOf(member.result).result);
    text.append(" ").append(scope).append(nameOf(member)).append(declared(member.parameters()));
    return text + (member.kind == MemberKind::get ? " const" : "");
}

// It speaks of the parameters by the names that they have here.
template <class Row>
std::string commentOf(const Row& row) {
    constexpr std::size_t kIndent = 4;
    std::string text = contractText(contractOf(row), ' ');
    for (const Parameter& parameter : row.parameters()) {
        const std::string quoted = '`' + std::string(parameter.name) + '`';
        for (std::size_t at = 0; (at = text.find(quoted, at)) != std::string::npos; ++at) {
            text.replace(at + 1, parameter.name.size(), nameOf(parameter));
        }
    }
    return comment(text, kIndent);
}

// The read-only mode is the widget's own: one of its properties.
std::vector<Member> slotMembers() {
    std::vector<Member> all;
    std::ranges::copy_if(kMembers, std::back_inserter(all),
                         [](const Member& member) { return member.name != "ReadOnly"; });
    return all;
}

std::string declarations() {
    std::string text;
    for (const Member& member : slotMembers()) {
        const bool isGet = member.kind == MemberKind::get;
        text.append(commentOf(member)).append(isGet ? "    [[nodiscard]] " : "    Q_SLOT ");
        text.append(signature(member, "")).append(";\n");
    }
    return text;
}

std::string signalDeclarations() {
    std::string text;
    for (const Event& event : kEvents) {
        text.append(commentOf(event)).append("    void ").append(withSmallInitial(event.name));
        text.append(declared(event.parameters())).append(";\n");
    }
    return text;
}

std::string definition(const Member& member) {
    const bool hasResult = member.result != ValueType::none;
    const auto arguments = listed(member.parameters(), [](const Parameter& parameter) {
        return call(wordsOf(parameter.type).toPanel, nameOf(parameter));
    });
    const auto called = "panel()." + std::string(member.name) + arguments;
    return signature(member, kClass) + " { " + (hasResult ? "return " : "") +
           call(wordsOf(member.result).fromPanel, called) + "; }\n";
}

std::string handler(const Event& event) {
    const auto taken = listed(event.parameters(), [](const Parameter& parameter) {
        const bool isText = parameter.type == ValueType::string;
        return (isText ? "String& " : "Integer& ") + nameOf(parameter);
    });
    const auto given = listed(event.parameters(), [](const Parameter& parameter) {
        return call(wordsOf(parameter.type).fromPanel, nameOf(parameter));
    });
    return "    void " + std::string(event.name) + taken + " override { Q_EMIT widget_." +
           withSmallInitial(event.name) + given + "; }\n";
}

// What is included there is not this room's to include.
std::string included(std::initializer_list<std::string_view> headers) {
    std::string text;
    for (const std::string_view header : headers) text.append("#include ").append(header) += '\n';
    return text;
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text.append(part);
    return text;
}

}  // namespace

std::string widgetInterfaceHeader() {
    const auto includes = included({"<memory>\n", "<QList>", "<QString>", "<QWidget>\n",
                                    "\"Orvo/core/connection.h\"", "\"Orvo/export.h\""});
    return joined({"#pragma once\n\n", includes, kHeaderBegin, declarations(), kHeaderSignals,
                   signalDeclarations(), kHeaderEnd});
}

std::string widgetInterfaceSource() {
    const auto includes =
        included({"\"Orvo/window/panel_interface.h\"\n", "<variant>\n",
                  "\"Orvo/core/marvane_assistant.h\"", "\"Orvo/window/drawing/text.h\""});
    std::string handlers;
    for (const Event& event : kEvents) handlers += handler(event);
    std::string definitions;
    for (const Member& member : slotMembers()) definitions += definition(member);
    return joined({includes, kSourceBegin, handlers, kSourceMembers, definitions, kSourceEnd});
}

}  // namespace Orvo::Script
