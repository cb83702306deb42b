#include "runner.h"

#include <algorithm>
#include <chrono>
#include <numeric>
#include <random>

namespace Orvo::Benchmarks {
namespace {

// The least figure of each.
std::vector<double> measureInTurns(const std::vector<Round>& rounds, Effort effort) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> least(rounds.size(), Limits::kNone);
    std::vector<std::size_t> order(rounds.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::minstd_rand random;
    const auto end = Clock::now() + std::chrono::duration<double>(effort.seconds);
    for (int done = 0; done < effort.rounds || Clock::now() < end; ++done) {
        std::ranges::shuffle(order, random);
        for (const std::size_t i : order) least[i] = std::min(least[i], rounds[i]());
    }
    return least;
}

}  // namespace

Result measureRow(const Row& row, Effort effort) {
    std::vector<Round> rounds{row.ours()};
    for (const Rival& rival : row.rivals) rounds.push_back(rival.contender());
    const std::vector<double> least = measureInTurns(rounds, effort);
    Result result{&row, least.front(), {}};
    for (std::size_t i = 0; i < row.rivals.size(); ++i) {
        const double theirs = least[i + 1];
        result.rivals.push_back({&row.rivals[i], theirs, result.ours / theirs});
    }
    return result;
}

std::vector<Row> gated(std::vector<Row> rows) {
    for (Row& row : rows) {
        std::erase_if(row.rivals,
                      [](const Rival& rival) { return rival.limits.gate == Limits::kNone; });
    }
    std::erase_if(rows, [](const Row& row) { return row.rivals.empty(); });
    return rows;
}

}  // namespace Orvo::Benchmarks
