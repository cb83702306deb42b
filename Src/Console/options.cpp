#include "Console/options.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Orvo::Console {
namespace {

constexpr std::string_view kProgram = "orvo-console";
constexpr std::string_view kWhatItDoes =
    "Runs panel script from FILE, or from standard input, on a panel without a window.";
constexpr std::string_view kAtTerminal = "At a terminal, type help for the commands.";

struct OptionRow {
    std::string_view name;
    std::string_view value;
    std::string_view text;
    void (*take)(Options& options, std::string_view value);
};

constexpr auto kOptions = std::to_array<OptionRow>({
    {"--keep-going", "", "go on after a command that was not understood",
     [](Options& options, std::string_view) { options.atComplaint = Script::AtComplaint::goOn; }},
    {"--generate", "FORM", "show the manual page or a shell's completion (man, bash, zsh, fish)",
     [](Options& options, std::string_view value) {
         options.wish = Options::Wish::generate;
         options.form = value;
     }},
    {"--help", "", "show this and end",
     [](Options& options, std::string_view) { options.wish = Options::Wish::help; }},
    {"--version", "", "show the version and end",
     [](Options& options, std::string_view) { options.wish = Options::Wish::version; }},
});

// "--name" or "--name=value".
void takeOption(Options& options, std::string_view argument) {
    const auto equals = argument.find('=');
    const auto* row = std::ranges::find(kOptions, argument.substr(0, equals), &OptionRow::name);
    if (row == kOptions.end()) throw WrongUsage{"there is no option " + std::string(argument)};
    const bool isGiven = equals != std::string_view::npos;
    if (isGiven == row->value.empty()) {
        throw WrongUsage{std::string(row->name) + (isGiven ? " takes no value" : " takes =") +
                         std::string(row->value)};
    }
    row->take(options, isGiven ? argument.substr(equals + 1) : "");
}

}  // namespace

Options readOptions(std::span<const char* const> arguments) {
    Options options;
    bool areFilesOnly = false;
    for (const std::string_view argument : arguments) {
        const bool isOption = !areFilesOnly && argument.size() > 1 && argument.starts_with('-');
        if (isOption && argument == "--") {
            areFilesOnly = true;
        } else if (isOption) {
            takeOption(options, argument);
        } else if (options.file) {
            throw WrongUsage{"more than one FILE: " + std::string(argument)};
        } else {
            options.file = argument;
        }
    }
    return options;
}

std::string usage() {
    std::string text = "Usage: " + std::string(kProgram) + " [FILE] [--keep-going]\n";
    text.append(kWhatItDoes).append("\n").append(kAtTerminal).append("\n\n");
    constexpr std::size_t kColumn = 20;
    for (const OptionRow& row : kOptions) {
        std::string name(row.name);
        if (!row.value.empty()) name.append("=").append(row.value);
        name.resize(kColumn, ' ');
        text.append("  ").append(name).append(row.text).append("\n");
    }
    text += "\nEnds with status";
    for (const auto& [status, meaning] : Script::kStatusTexts) {
        text += (status == Script::done ? " " : ", ") + std::to_string(status) + " when ";
        text += meaning;
    }
    return text + '.';
}

Script::Manual manual() {
    Script::Manual manual{.program = std::string(kProgram),
                          .purpose = "run panel script on an amplifier's front panel",
                          .operands = "[FILE]",
                          .description = {std::string(kWhatItDoes), std::string(kAtTerminal)},
                          .options = {},
                          .keys = {},
                          .seeAlso = {"marvane-manager(1)"}};
    for (const OptionRow& row : kOptions) {
        manual.options.push_back(
            {{std::string(row.name)}, std::string(row.value), std::string(row.text)});
    }
    return manual;
}

}  // namespace Orvo::Console
