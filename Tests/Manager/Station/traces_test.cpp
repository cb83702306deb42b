#include "Manager/Station/traces.h"

#include <clocale>

#include <gtest/gtest.h>

namespace Orvo::Manager {
namespace {

constexpr const Member& kDrawGrid = memberNamed<Integer>("DisegnaAssi");
constexpr const Member& kDrawTrace = memberNamed<Integer, IntegerArray>("DisegnaFormaDOnda");

void draw(Traces& traces, Integer channel, const IntegerArray& samples) {
    const std::array<Value, 2> arguments{channel, samples};
    traces.called(kDrawTrace, arguments);
}

void clear(Traces& traces, Integer channel) {
    const std::array<Value, 1> arguments{channel};
    traces.called(kDrawGrid, arguments);
}

const std::string kHeader = "index,sample (counts),level (V)\n";

// The scope's 0 V mark lies 50 pixels down, 10 pixels are 30 V.
TEST(TraceCsv, HasALineForEachSampleWithItsLevel) {
    EXPECT_EQ(traceCsv({1, {128, 8, 247}}), kHeader + "1,128,6.94\n2,8,150.45\n3,247,-135.37\n");
}

TEST(TraceCsv, LeavesOutWhatTheScopeDoesNotDraw) {
    EXPECT_EQ(traceCsv({-1, {1, 2, 128}}), kHeader + "1,128,6.94\n");
    EXPECT_EQ(traceCsv({2, {128}}), kHeader);
    EXPECT_EQ(traceCsv({}), kHeader);
}

TEST(TraceCsv, HasAPointInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "it_IT.UTF-8", "fr_FR.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(traceCsv({1, {128}}), kHeader + "1,128,6.94\n") << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Traces, AreThoseTheScopesShow) {
    Traces traces;
    draw(traces, 2, {1, {10, 20}});
    draw(traces, 2, {1, {30, 40}});
    draw(traces, 5, {1, {50, 60}});
    EXPECT_EQ(traces.samples(2), IntegerArray(1, {30, 40}));
    for (const Integer channel : std::to_array<Integer>({1, 3, 4}))
        EXPECT_FALSE(traces.has(channel)) << channel;
}

TEST(Traces, EndWithTheGridAlone) {
    Traces traces;
    draw(traces, 1, {1, {10, 20}});
    draw(traces, 2, {1, {10, 20}});
    clear(traces, 2);
    EXPECT_TRUE(traces.has(1));
    EXPECT_FALSE(traces.has(2));
    clear(traces, 9);  // which clears channel 1's
    EXPECT_FALSE(traces.has(1));
}

}  // namespace
}  // namespace Orvo::Manager
