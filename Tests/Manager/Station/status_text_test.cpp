#include "Manager/Station/status_text.h"

#include <gtest/gtest.h>

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

TEST(StatusTextTest, TellsHowOldWhatThePanelShowsIsAndVeilsWhatIsNotLive) {
    struct Row {
        Situation situation;
        const char* lastWord = "";
        const char* veil = "";
        bool isStale = false;
    };
    const auto heard = [](std::chrono::milliseconds silence) {
        return Situation{"Amplifier", true, true, 3h, silence};
    };
    const Row rows[] = {
        {heard(0ms), "Last word just now", ""},
        {heard(999ms), "Last word just now", ""},
        {heard(1000ms), "Last word 1 s ago", ""},
        {heard(3999ms), "Last word 3 s ago", ""},
        {heard(4s), "No reply for 4 s: old values", "No reply for 4 s, trying again", true},
        {heard(65s), "No reply for 1 min 05 s: old values", "No reply for 1 min 05 s, trying again",
         true},
        {heard(2h + 7min + 59s), "No reply for 2 h 07 min: old values",
         "No reply for 2 h 07 min, trying again", true},
        // A link that is lost, one that has never been there, and one after another's.
        {{"Amplifier", false, false, 9s, 1s},
         "No reply for 1 s: old values",
         "No reply for 1 s, trying again",
         true},
        {{"Amplifier", false, false, 999ms}, "No reply yet", "Waiting for a reply"},
        {{"Amplifier", false, false, 2s}, "No reply yet", "No reply for 2 s, trying again"},
        {{"Amplifier", false, false, 2s, 8s},
         "No reply for 2 s: old values",
         "No reply for 2 s, trying again",
         true},
        {{}, "", "Nothing connected"},
        {{"", false, false, 7s, 7s}, "Old values", "Nothing connected, values of 7 s ago", true},
    };
    for (const Row& row : rows) {
        const auto text = statusText(row.situation);
        EXPECT_EQ(text.lastWord, row.lastWord);
        EXPECT_EQ(text.veil, row.veil) << row.lastWord;
        EXPECT_EQ(text.isStale, row.isStale) << row.lastWord;
    }
}

TEST(StatusTextTest, TellsTheLinkAndWhatIsConnected) {
    const auto text = statusText({.connectedTo = "Amplifier", .isLinkUp = true});
    EXPECT_EQ(text.connection + ", " + text.link, "Amplifier, Link up");
    EXPECT_EQ(statusText({.connectedTo = "Amplifier"}).link, "Link down");
    EXPECT_EQ(statusText({}).connection, "Nothing connected");
}

}  // namespace
}  // namespace Orvo::Manager
