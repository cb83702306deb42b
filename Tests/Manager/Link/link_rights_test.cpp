#include <fstream>

#include "Manager/Link/line_splitter.h"
#include "Manager/Link/link_bench.h"
#include "Manager/Session/replay.h"
#include "Manager/Station/event_log.h"
#include "Script/bounds.h"
#include "Script/recordings.h"

// What a device may do, and what it may not.
namespace Orvo::Manager {
namespace {

constexpr auto kDenied = "! 70 Permission denied\n";
constexpr auto kNoRoom = "! 7 Out of memory\n";

class LinkRightsTest : public LinkTest {
protected:
    void lock() {
        isLocked_ = true;
        panel().ReadOnly(true);
    }

    std::string ask(const std::string& text) {
        for (std::string rest = text; !rest.empty();) {
            rest.erase(0, send(rest));
            station_.advance(25ms);
        }
        return received();
    }
};

TEST_F(LinkRightsTest, MayNotLiftReadOnlyModeThatThePersonHasSet) {
    struct Case {
        const char* command;
        const char* whenFree;
        const char* whenLocked;
        const char* left;  // of the flag, when locked
    };
    goOnline();
    for (const auto& [command, whenFree, whenLocked, left] :
         {Case{"let ReadOnly 0", "ok\n", kDenied, "= -1\n"},
          Case{"let ReadOnly 1", "ok\n", kDenied, "= -1\n"},
          Case{"let ReadOnly true", "ok\n", "ok\n", "= -1\n"},
          Case{"invoke 0x68030000 let 0", "ok\n", kDenied, "= -1\n"},
          Case{"invoke 0x68030000 let \"False\"", "ok\n", kDenied, "= -1\n"},
          Case{"invoke 0x68030000 let 70000", "ok\n", "ok\n", "= -1\n"},
          Case{"invoke 0x68030000 let \"no\"", "! 13 Type mismatch\n", "! 13 Type mismatch\n",
               "= -1\n"},
          Case{"on Mute let ReadOnly 0", "ok\n", "ok\n", "= -1\n"}}) {
        isLocked_ = false;
        EXPECT_EQ(ask(std::string(command) + '\n'), whenFree) << command;
        lock();
        EXPECT_EQ(ask(std::string(command) + '\n'), whenLocked) << command;
        EXPECT_EQ(ask("get ReadOnly\n"), left) << command;
    }
    panel().ReadOnly(false);  // by whom it may
    click(channel(1).muteButton);
    EXPECT_EQ(ask("\n"), std::string("event Mute 1\n  ") + kDenied + "  " + kDenied);
}

// There is room for one more of each, whatever it is, and not for two.
TEST_F(LinkRightsTest, MayNotFillTheMemory) {
    constexpr std::size_t kRoom = 600'000;  // bytes
    const std::string text = std::string(200'000, 'x') + '\n';
    std::string ones;
    for (int i = 0; i < 100'000; ++i) ones += " 1";
    const String kLog((Script::kMostKept - kRoom) / sizeof(char16_t), u'x');
    goOnline();
    for (const std::string& command :
         {"on Mute call TrimStr " + text, "on Mute invoke 1 call" + ones + '\n',
          "on OnOff on OnOff on OnOff call TrimStr " + text, "call AggiugiTesto " + text,
          "invoke 0x60030019 call " + text}) {
        const std::string label = command.substr(0, 40);
        store()[kCommon.log].addItem(kLog);
        EXPECT_EQ(ask(command), "ok\n") << label;
        EXPECT_EQ(ask(command), kNoRoom) << label;
        EXPECT_EQ(ask("on DownLoad get PowerOn\nget Mute 1\n"), "ok\n= 0\n") << "what is small";
        EXPECT_EQ(ask("off Mute\noff OnOff\ncall CancellaTesto\n"), "ok\nok\nok\n");
        EXPECT_EQ(ask(command), "ok\n") << label;
        ask("off Mute\noff OnOff\ncall CancellaTesto\n");
    }
}

TEST_F(LinkRightsTest, MaySetAnyNumberOfSmallHandlers) {
    goOnline();
    std::string commands;
    for (int i = 0; i < 500; ++i) commands += "on Mute get Mute 1\n";
    EXPECT_EQ(ask(commands).size(), 500 * std::strlen("ok\n"));
}

// By a clock that moves by a millisecond whenever it is looked at.
TEST_F(LinkRightsTest, MayNotAnswerAnEventForLong) {
    goOnline();
    std::string commands;
    for (int i = 0; i < 100; ++i) commands += "on Mute get Mute 1\n";
    ask(commands);
    betweenLooks_ = 1ms;
    const auto start = now_;
    click(channel(1).muteButton);
    EXPECT_LE(now_ - start, 50ms);
    betweenLooks_ = 0ms;
    std::string answers = ask("\n");
    EXPECT_TRUE(answers.ends_with("  = 0\n  ! 18 User interrupt occurred\n"));
    EXPECT_GT(std::ranges::count(answers, '\n'), 10);
    click(channel(1).muteButton);
    answers = ask("\n");
    EXPECT_EQ(std::ranges::count(answers, '\n'), 101) << "the next event has its own time";
}

// Of each line it is seen whether it was carried out.
constexpr auto kConversation =
    "let PowerOn 1\nlet Volume 1 -20\r\ncall AggiugiTesto \"a\\u0062c\"\non Mute let Mute 1 -1\n\n"
    "call DisegnaFormaDOnda 1 [10 -200]\ninvoke 0x68030006 let 3 -12\noff Mute\nnew\n"
    "let Temperature 2 45\nlet Connected -1\n";

TEST_F(LinkRightsTest, MayBreakOffAfterEveryByte) {
    const std::string conversation = kConversation;
    std::string expected;
    for (std::size_t size = 0; size <= conversation.size(); ++size) {
        SCOPED_TRACE(size);
        owner_.renew();
        connectLink();
        station_.advance(25ms);
        const std::string heard = conversation.substr(0, size);
        ask(heard);
        hangUp();
        station_.advance(25ms);
        ASSERT_TRUE(station_.situation().connectedTo.ends_with("(not there, trying again)"));
        click(channel(3).muteButton);

        if (heard.empty() || heard.ends_with('\n')) {
            Script::StorePanel other;
            Tests::answersOn(other, heard + "let Connected false\n");
            expected = Tests::stateOf(other);
        }
        ASSERT_EQ(Tests::stateOf(owner_), expected);
    }
}

TEST(LinkLimitsTest, StandInTheDocuments) {
    struct Limit {
        const char* page;
        std::size_t number;
        std::string text;  // behind the number
    };
    for (const auto& [page, number, text] :
         {Limit{"link.md", Script::kMostKept >> 20, " MiB kept"},
          Limit{"link.md", LineSplitter::kLongestLine >> 10, " KiB long"},
          Limit{"link.md", LinkDevice::kMostUnread >> 20, " MiB unread"},
          Limit{"link.md", Script::kMostWords, " words"},
          Limit{"link.md", Script::Session::kLongestAnswer.count(), " ms;"},
          Limit{"link.md", EventLog::kMostLines, " lines"},
          Limit{"link.md", EventLog::kLongestLine, " bytes of each"},
          Limit{"panel-script.md", Script::kMostKept >> 20, " MiB of memory"},
          Limit{"panel-script.md", Replay::kLongestLine >> 10, " KiB ends it"}}) {
        std::ifstream file(std::string(ORVO_DOCS "/") + page);
        std::string words;
        for (std::string word; file >> word;) words += ' ' + word;
        const std::string sentence = ' ' + std::to_string(number) + text;
        EXPECT_NE(words.find(sentence), std::string::npos) << page << ':' << sentence;
    }
}

}  // namespace
}  // namespace Orvo::Manager
