#pragma once

#include <functional>
#include <iterator>
#include <random>

namespace Orvo::Tests {

/// What a seed decides.
class Chance {
public:
    explicit Chance(unsigned seed) : random_(seed) {}

    int below(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
    bool isOneIn(int count) { return below(count) == 0; }
    template <class Range>
    decltype(auto) oneOf(Range& range) {
        return *(std::begin(range) + below(static_cast<int>(std::size(range))));
    }

private:
    std::mt19937 random_;
};

/// Lets lives go by, one for each seed: one that is always the same, or, for as many seconds as
/// ORVO_RANDOM_SECONDS says, ones that nobody has tried. Their seeds are printed; ORVO_RANDOM_SEED
/// repeats one.
void forSeeds(const std::function<void(Chance& chance)>& live);

}  // namespace Orvo::Tests
