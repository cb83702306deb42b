#pragma once

#include <string>
#include <vector>

#include "runner.h"

namespace Orvo::Benchmarks {

/// A figure in its unit, rounded: "948 us", "1.62 MB".
std::string figureText(Unit unit, double figure);

/// How ours compares: "7.0x less" or "1.9x"; empty when nothing is asked for.
std::string ratioText(double ratio);

/// What came of what is asked for: "aim", "met", "missed", or nothing.
std::string verdict(const Compared& compared);

/// The row for a terminal.
std::string text(const Result& result);

/// A line for each gate that failed.
std::string failedGates(const Result& result);

}  // namespace Orvo::Benchmarks
