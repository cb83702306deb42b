#include "Support/chance.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

namespace Orvo::Tests {
namespace {

unsigned long valueOf(const char* variable, unsigned long otherwise) {
    const char* text = std::getenv(variable);
    return text != nullptr ? std::stoul(text) : otherwise;
}

}  // namespace

void forSeeds(const std::function<void(Chance& chance)>& live) {
    constexpr unsigned kUsual = 11;
    std::random_device fresh;
    const std::chrono::seconds time(valueOf("ORVO_RANDOM_SECONDS", 0));
    const auto end = std::chrono::steady_clock::now() + time;
    auto seed =
        static_cast<unsigned>(valueOf("ORVO_RANDOM_SEED", time.count() > 0 ? fresh() : kUsual));
    do {
        std::cout << "seed " << seed << std::endl;
        Chance chance(seed);
        live(chance);
        seed = fresh();
    } while (std::chrono::steady_clock::now() < end && !testing::Test::HasFailure());
}

}  // namespace Orvo::Tests
