#include "Script/help.h"

#include <array>
#include <utility>

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

std::string helpOn(std::string_view name, const Grammar& grammar) {
    if (name == kHelp) return "help [COMMAND] lists the commands, or says what one of them does";
    const Command* command = findCommand(name);
    const bool isKnown = command != nullptr && isAllowed(*command, grammar);
    if (!isKnown) return "There is no command " + excerpt(name) + " here";
    return usage(*command) + '\n' + std::string(command->help);
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

std::optional<std::string> help(std::string_view line, const Grammar& grammar) {
    try {
        const auto words = split(line);
        if (words.empty() || words.front().source != kHelp) return std::nullopt;
        if (words.size() == 1) return helpOnAll(grammar);
        if (words.size() == 2) return helpOn(words[1].source, grammar);
        return "help takes one command, not " + excerpt(words[2].source) + " too";
    } catch (const Misunderstood&) {
        return std::nullopt;
    }
}

}  // namespace Orvo::Script
