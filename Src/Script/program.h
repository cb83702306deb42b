#pragma once

#include <string_view>

// What the programs that run panel script have in common.
namespace Orvo::Script {

/// What can't be written is told; it doesn't end the program unsaid, nor does it land in a file
/// that is opened in the place of a standard stream that whoever started the program has closed.
void surviveFailedWrites();

/// One line on standard error, whatever names and words are in it.
void complain(std::string_view text);

}  // namespace Orvo::Script
