#include "Console/help.h"

#include <array>
#include <utility>

#include "Console/command.h"
#include "Console/text_of.h"

namespace Orvo::Console {
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

std::string helpOnAll() {
    std::string text;
    for (const auto& [side, heading] : kSides) {
        text.append(heading) += '\n';
        for (const Command& command : allCommands()) {
            if (command.side == side) text += row(command);
        }
    }
    text.pop_back();
    return text;
}

}  // namespace

std::string usage(const Command& command) {
    std::string text(command.name);
    if (!command.words.empty()) text.append(" ").append(command.words);
    return text;
}

std::optional<std::string> help(std::string_view line) {
    try {
        const auto words = split(line);
        if (words.empty() || words.front().source != kHelp) return std::nullopt;
        if (words.size() == 1) return helpOnAll();
        const Command* command = findCommand(words[1].source);
        if (command == nullptr) return "There is no command " + excerpt(words[1].source);
        return usage(*command) + '\n' + std::string(command->help);
    } catch (const Misunderstood&) {
        return std::nullopt;
    }
}

}  // namespace Orvo::Console
