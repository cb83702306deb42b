#include "Manager/Station/status_text.h"

#include <gtest/gtest.h>

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

TEST(StatusTextTest, TellsHowOldTheLastWordIs) {
    struct Row {
        std::optional<std::chrono::milliseconds> silence;
        const char* lastWord = "";
        bool isStale = false;
    };
    const Row rows[] = {
        {std::nullopt, "No word yet", false},
        {0ms, "Last word just now", false},
        {999ms, "Last word just now", false},
        {1000ms, "Last word 1 s ago", false},
        {3999ms, "Last word 3 s ago", false},
        {4000ms, "No word for 4 s: old values", true},
        {65s, "No word for 1 min 05 s: old values", true},
        {2h + 7min + 59s, "No word for 2 h 07 min: old values", true},
    };
    for (const Row& row : rows) {
        const auto text = statusText({.connectedTo = "Amplifier", .silence = row.silence});
        EXPECT_EQ(text.lastWord, row.lastWord);
        EXPECT_EQ(text.isStale, row.isStale) << row.lastWord;
    }
}

TEST(StatusTextTest, TellsTheLinkAndWhatIsConnected) {
    const auto text = statusText({.connectedTo = "Amplifier", .isLinkUp = true});
    EXPECT_EQ(text.connection + ", " + text.link, "Amplifier, Link up");
    EXPECT_EQ(statusText({.connectedTo = "Amplifier"}).link, "Link down");
    EXPECT_FALSE(statusText({}).isStale);
    const auto old = statusText({.connectedTo = {}, .showsOldValues = true});
    EXPECT_EQ(old.connection + ", " + old.lastWord, "Nothing connected, Old values");
    EXPECT_TRUE(old.isStale);
    const auto silent = statusText({.connectedTo = "Amplifier", .showsOldValues = true});
    EXPECT_EQ(silent.lastWord, "No word yet: old values");
}

}  // namespace
}  // namespace Orvo::Manager
