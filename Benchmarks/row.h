#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace Orvo::Benchmarks {

/// One round of something that is measured. Its figure is what one time costs, in the row's unit;
/// of many rounds the least one counts, as everything else on the machine only adds.
using Round = std::function<double()>;

/// Gets something ready to be measured; what it needs lives as long as the round.
using Contender = std::function<Round()>;

enum class Unit { nanoseconds, percent, bytes };

/// How our figure may compare with a rival's, at most: ours divided by theirs.
struct Limits {
    static constexpr double kNone = std::numeric_limits<double>::infinity();

    double must = kNone;
    double aim = kNone;
    double gate = kNone;  ///< wide enough for a busy machine; what CI stops at
};

constexpr double timesLess(double times) { return 1 / times; }
constexpr double times(double times) { return times; }

/// A peer does the same job in the usual way; a floor is what nobody can do without.
enum class Role { peer, floor, limit };

struct Rival {
    Role role = Role::peer;
    std::string name;
    Contender contender;
    Limits limits{};
};

/// One fact of the table: what we need for something, and what others do.
struct Row {
    std::string measure;
    Unit unit = Unit::nanoseconds;
    Contender ours;
    std::vector<Rival> rivals;
};

std::vector<Row> traceRows();
std::vector<Row> callRows();
std::vector<Row> panelRows();
std::vector<Row> paintRows();
std::vector<Row> programRows();

}  // namespace Orvo::Benchmarks
