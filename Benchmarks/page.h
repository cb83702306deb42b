#pragma once

#include <string>
#include <vector>

#include "runner.h"

namespace Orvo::Benchmarks {

/// Writes the results as a Markdown page, and its charts beside it: PAGE-peers.svg and
/// PAGE-floors.svg. Throws std::ios_base::failure.
void writePage(const std::string& file, const std::vector<Result>& results);

/// A bar for each rival of that role, on a logarithmic scale: to the left what we need less than
/// it, to the right what we need more.
std::string chart(const std::vector<Result>& results, Role role);

}  // namespace Orvo::Benchmarks
