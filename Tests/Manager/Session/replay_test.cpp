#include "Manager/Session/replay.h"

#include "Script/recordings.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using namespace Tests;

using ReplayTest = OwnedPanel;

std::string times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

// By a clock that moves by a millisecond whenever it is looked at.
TEST_F(ReplayTest, TakesNoMoreThanAMomentAtATimeAndNoMoreMemoryThanThereIsRoomFor) {
    constexpr auto kNoRoom = "there is no room to keep this";
    const std::string text(200'000, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {times(999, "get Mute 1\n"), ""},
        {times(99, "click Command12\n"), ""},
        {times(99, "on Mute get Mute 1\n") + "click Command12\n", "more is done in the midst"},
        {"chronological\nclick Command12\n" + times(99, "meanwhile let Mute 2 true\n"),
         "more is done in the midst"},
        {times(20'000, "meanwhile quit\n"), kNoRoom},
        {times(20'000, "resume\n"), kNoRoom},
        {times(99, "answer " + text + "\n"), kNoRoom},
        {times(99, "call AggiugiTesto " + text + "\n"), kNoRoom},
        {"on Mute call AggiugiTesto " + text + "\n" + times(99, "click Command12\n"), kNoRoom},
        {"call CancellaTesto " + times(200'000, "1 "), "there are too many words"},
    };
    const TemporaryDirectory directory;
    const std::string file = directory.path() / "session.txt";
    for (const auto& [script, complaint] : rows) {
        SCOPED_TRACE(script.substr(0, 60));
        owner_.renew();
        std::ofstream(file) << script;
        std::chrono::steady_clock::time_point now;
        Replay replay(owner_, owner_, file, [&now] { return now += 1ms; });
        while (!replay.isOver()) {
            const auto before = now;
            replay.advance(25ms);
            ASSERT_LE(now - before, 50ms);
        }
        EXPECT_EQ(replay.complaint().has_value(), !complaint.empty());
        EXPECT_NE(replay.complaint().value_or("").find(complaint), std::string::npos)
            << *replay.complaint();
    }
}

}  // namespace
}  // namespace Orvo::Manager
