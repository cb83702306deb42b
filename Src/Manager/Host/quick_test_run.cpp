#include "Manager/Host/quick_test_run.h"

#include <array>
#include <cstddef>

namespace Orvo::Manager {
namespace {

using namespace Simulator;
using namespace Figures;

struct Row {
    Item item;
    double lowest;
    double highest;
};

constexpr Row within(Item item, double nominal) { return {item, 0.85 * nominal, 1.1 * nominal}; }

// By the panel's row.
constexpr std::array<Row, 6> kRows{{
    {Item::temperature, 1, kTripDegrees - 10},
    within(Item::positivePower, kPositivePower),
    within(Item::negativePower, kNegativePower),
    within(Item::positiveAux, kPositiveAux),
    within(Item::negativeAux, kNegativeAux),
    {Item::mains, 1, 1},
}};

bool passes(const Row& row, const std::vector<Reading>& readings) {
    bool isAny = false;
    for (const Reading& reading : readings) {
        if (reading.item != row.item) continue;
        if (reading.value < row.lowest || reading.value > row.highest) return false;
        isAny = true;
    }
    return isAny;
}

}  // namespace

void QuickTestRun::begin(Milliseconds now) {
    panel_.ClearTest();
    panel_.ClearMains();
    next_ = 0;
    due_ = now + LinkFigures::kQuickTestPace;
    passed_ = 0;
}

std::optional<QuickTestRun::Result> QuickTestRun::step(Milliseconds now,
                                                       const std::vector<Reading>& readings) {
    if (!next_ || now < due_) return std::nullopt;
    const bool hasPassed = passes(kRows[static_cast<std::size_t>(*next_)], readings);
    panel_.chkTest(*next_, hasPassed);
    if (hasPassed) ++passed_;
    ++*next_;
    due_ = now + LinkFigures::kQuickTestPace;
    if (static_cast<std::size_t>(*next_) < kRows.size()) return std::nullopt;
    next_.reset();
    return Result{passed_, static_cast<int>(kRows.size())};
}

}  // namespace Orvo::Manager
