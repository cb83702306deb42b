#include "Console/options.h"

namespace Orvo::Console {

const std::string_view kUsage =
    "Usage: orvo-console [FILE] [--keep-going]\n"
    "Runs panel script from FILE, or from standard input, on a panel without a window.\n"
    "At a terminal, type help for the commands.\n"
    "\n"
    "  --keep-going  go on after a command that was not understood\n"
    "  --help        show this and end\n"
    "  --version     show the version and end\n"
    "\n"
    "Ends with status 1 when a command was not understood, 2 when the script can't be run.";

Options readOptions(std::span<const char* const> arguments) {
    Options options;
    bool areFilesOnly = false;
    for (const std::string_view argument : arguments) {
        const bool isOption = !areFilesOnly && argument.size() > 1 && argument.starts_with('-');
        if (isOption && argument == "--") {
            areFilesOnly = true;
        } else if (isOption && argument == "--keep-going") {
            options.atComplaint = Script::AtComplaint::goOn;
        } else if (isOption && argument == "--help") {
            options.wish = Options::Wish::help;
        } else if (isOption && argument == "--version") {
            options.wish = Options::Wish::version;
        } else if (isOption) {
            throw WrongUsage{"there is no option " + std::string(argument)};
        } else if (options.file) {
            throw WrongUsage{"more than one FILE: " + std::string(argument)};
        } else {
            options.file = argument;
        }
    }
    return options;
}

}  // namespace Orvo::Console
