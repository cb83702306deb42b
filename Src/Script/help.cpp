#include "Script/help.h"

#include <array>
#include <utility>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Orvo/values/ignoring_case.h"
#include "Script/command.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::size_t kHelpColumn = 42;

constexpr std::array<std::pair<Side, std::string_view>, 3> kSides{{
    {Side::host, "The host's side"},
    {Side::person, "The person's side"},
    {Side::looking, "Looking"},
}};

// The ellipsis is three bytes but one character.
std::size_t widthOf(const std::string& text) {
    return text.size() - (text.find("…") != std::string::npos ? 2 : 0);
}

std::string row(const Command& command) {
    std::string text = "  " + usage(command);
    const std::size_t width = widthOf(text);
    text.append(width < kHelpColumn ? kHelpColumn - width : 1, ' ');
    return text.append(command.help) + '\n';
}

std::string helpOnAll(const Grammar& grammar) {
    std::string text;
    for (const auto& [side, heading] : kSides) {
        text.append(heading) += '\n';
        for (const Command& command : allCommands()) {
            if (command.side == side && isAllowed(command, grammar)) text += row(command);
        }
    }
    text.pop_back();
    return text;
}

// A member or an event, as it is called or raised.
template <class Row>
std::string helpOn(std::string text, const Row& row) {
    for (const Parameter& parameter : row.parameters()) text.append(" ").append(parameter.name);
    return text + '\n' + contractText(contractOf(row), '\n') + '\n';
}

std::string helpOn(std::string_view name, const Grammar& grammar) {
    if (name == kHelp)
        return "help [NAME] lists the commands, or says what a command, a member or an event does";
    std::string text;
    const Command* command = findCommand(name);
    if (command != nullptr && isAllowed(*command, grammar)) {
        text = usage(*command) + '\n' + std::string(command->help) + '\n';
    }
    for (const Member& member : kMembers) {
        if (equalIgnoringCase(member.name, name)) text += helpOn(commandText(member, {}), member);
    }
    for (const Event& event : kEvents) {
        if (event.name == name) text += helpOn(eventText(event, {}), event);
    }
    if (text.empty()) return "There is no command, member or event " + excerpt(name) + " here";
    text.pop_back();
    return text;
}

}  // namespace

std::string usage(const Command& command) {
    std::string text(command.name);
    for (const WordKind& kind : command.words) {
        const bool isOptional = kind.presence == WordKind::Presence::optional;
        text += isOptional ? " [" + textOf(kind) + ']' : ' ' + textOf(kind);
    }
    return text;
}

std::string contractText(const Contract& contract, char between) {
    std::string text(contract.effect);
    if (!contract.values.empty()) (text += between).append(contract.values);
    if (!contract.errors.empty()) (text += between).append("Error ").append(contract.errors);
    return text;
}

std::optional<std::string> help(std::string_view line, const Grammar& grammar) {
    try {
        const auto words = split(line);
        if (words.empty() || words.front().source != kHelp) return std::nullopt;
        if (words.size() == 1) return helpOnAll(grammar);
        if (words.size() == 2) return helpOn(words[1].source, grammar);
        return "help takes one name, not " + excerpt(words[2].source) + " too";
    } catch (const Misunderstood&) {
        return std::nullopt;
    }
}

}  // namespace Orvo::Script
