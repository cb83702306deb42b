#pragma once

#include <vector>

#include "row.h"

namespace Orvo::Benchmarks {

struct Compared {
    const Rival* rival = nullptr;
    double figure = 0;
    double ratio = 0;  ///< ours to theirs
};

struct Result {
    const Row* row = nullptr;
    double ours = 0;
    std::vector<Compared> rivals;
};

/// How long a row is measured: in rounds at the least, and in seconds.
struct Effort {
    int rounds = 5;
    double seconds = 2;
};

/// Measures us and the row's rivals in turns, in another order each round.
Result measureRow(const Row& row, Effort effort);

/// The rows with nothing but the rivals that have a gate.
std::vector<Row> gated(std::vector<Row> rows);

}  // namespace Orvo::Benchmarks
