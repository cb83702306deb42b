#include "Manager/Session/session_bench.h"
#include "Orvo/values/text.h"
#include "Support/approved.h"

namespace Orvo::Manager {
namespace {

class SessionLogTest : public SessionBench {
protected:
    std::size_t shownLines() {
        return store().get<Runtime::StoredList>(kCommon.log).state().items.size();
    }
};

TEST_F(SessionLogTest, KeepsWhatThePanelHasForgottenOnALineEachWithTheTime) {
    std::chrono::system_clock::time_point now{1'000'000'000s};
    SessionLog log(owner_, file_, [&now] { return now; });
    const std::string first = localTime(now);
    panel().AggiugiTesto(u"two\nlines\u009B");
    owner_.renew();
    panel().AggiugiTesto(fromUtf8(timeOfDay(now) + "  its own time"));
    panel().CancellaTesto();
    now += 1s;
    log.add("last");
    log.flush();
    EXPECT_EQ(textIn(file_), first + "  two␊lines\uFFFD\n" + first + "  its own time\n" +
                                 localTime(now) + "  last\n");
    EXPECT_EQ(log.text(), textIn(file_));
    EXPECT_EQ(first.size(), std::string_view("2001-09-09 01:46:40").size());
}

TEST_F(SessionLogTest, LeavesThePanelTheEndOfALogThatIsTooLong) {
    SessionLog log(owner_, "");
    for (std::size_t i = 0; i <= SessionLog::kMostShown; ++i) panel().AggiugiTesto(u"line");
    const std::string before = log.text();
    log.shorten();
    EXPECT_EQ(shownLines(), SessionLog::kLeftShown);
    EXPECT_EQ(log.text(), before);
    panel().AggiugiTesto(u"last");
    EXPECT_TRUE(log.text().ends_with("  last\n"));
}

TEST_F(SessionLogTest, TellsWhatWasConnectedAndLosesNothingByIt) {
    begin({.log = file_});
    for (int i = 0; i < 2; ++i) {
        session_->connectSimulator();
        session_->letPass(2s);
        session_->connectNothing();
        session_->letPass(25ms);
    }
    std::istringstream lines(textIn(file_));
    std::string texts;
    for (std::string line; std::getline(lines, line);) texts += line.substr(21) + '\n';
    const std::string life =
        "Connecting: Simulated amplifier (seed 1)\nConnected\nLink up\n"
        "Disconnecting: Simulated amplifier (seed 1)\nLink down\n";
    EXPECT_EQ(texts, "The program has started\n" + life + life);
    EXPECT_EQ(shownLines(), 2U);
    directory_.add({"old.txt = let Connected -1\ncall AggiugiTesto \"Link lost\"\nwait 9\n"});
    session_->startReplay(directory_.path() / "old.txt");
    for (int i = 0; i < 3; ++i) session_->letPass(25ms);
    panel().AggiugiTesto(u"now");
    EXPECT_FALSE(session_->isReplaying());
    EXPECT_NE(session_->log().find("  Replayed: Link lost\n"), std::string::npos);
    EXPECT_NE(session_->log().find("  now\n"), std::string::npos);
}

}  // namespace
}  // namespace Orvo::Manager
