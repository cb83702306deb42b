#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "Script/manual.h"
#include "Script/script_runner.h"

namespace Orvo::Console {

/// What the command line asks for.
struct Options {
    enum class Wish : std::uint8_t { run, generate, help, version };

    Wish wish = Wish::run;
    Script::AtComplaint atComplaint = Script::AtComplaint::stop;
    std::optional<std::string> file{};  ///< none: standard input
    std::string form{};                 ///< what is to be generated
};

/// What is thrown for a command line that can't be understood.
struct WrongUsage {
    std::string text;
};

Options readOptions(std::span<const char* const> arguments);

std::string usage();
Script::Manual manual();

}  // namespace Orvo::Console
