#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Orvo/core/contract_table.h"
#include "Script/command.h"

namespace Orvo::Script {

/// The word that asks for help at a terminal; it is no command of the language.
constexpr std::string_view kHelp = "help";

/// The command as it is written: its name and what follows it.
std::string usage(const Command& command);

/// The contract's columns, with `between` between them.
std::string contractText(const Contract& contract, char between);

/// The answer to "help" and "help NAME" (of a command, a member or an event), on one or more lines,
/// of what may be said where the line comes from; none when the line asks for no help.
std::optional<std::string> help(std::string_view line, const Grammar& grammar);

}  // namespace Orvo::Script
