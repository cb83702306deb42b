#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Script/script_runner.h"

namespace Orvo::Console {

/// What the command line asks for.
struct Options {
    enum class Wish : std::uint8_t { run, help, version };

    Wish wish = Wish::run;
    Script::AtComplaint atComplaint = Script::AtComplaint::stop;
    std::optional<std::string> file{};  ///< none: standard input
};

/// What is thrown for a command line that can't be understood.
struct WrongUsage {
    std::string text;
};

Options readOptions(std::span<const char* const> arguments);

extern const std::string_view kUsage;

}  // namespace Orvo::Console
