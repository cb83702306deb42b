#include "Script/session.h"

#include <gtest/gtest.h>

#include "Orvo/store/operation.h"
#include "Script/bounds.h"
#include "Script/store_panel.h"
#include "Script/text_of.h"

namespace {

using namespace Orvo;
using namespace Orvo::Script;

using Lines = std::vector<std::string>;

struct Unbounded final : Supervisor {
    void permit(const Call&) override {}
    std::size_t keptElsewhere() const override { return 0; }
    std::chrono::steady_clock::time_point now() override { return {}; }
};

struct SessionTest : testing::Test {
    Lines answersTo(std::string_view line, Grammar::Speaker speaker = Grammar::Speaker::anyone) {
        Lines answers;
        const auto keep = [&](std::string_view answer) { answers.emplace_back(answer); };
        const Grammar grammar{.speaker = speaker};
        if (speaker == Grammar::Speaker::device) {
            Unbounded supervisor;
            Session(panel, supervisor, grammar, keep).run(line);
        } else {
            Session(panel, panel, grammar, keep).run(line);
        }
        return answers;
    }

    StorePanel panel;
};

TEST_F(SessionTest, ADeviceMaySendTheHostsCommandsOnly) {
    for (const Command& command : allCommands()) {
        if (command.side == Side::host) continue;
        for (const std::string before : {"", "on Mute ", "on Mute on OnOff "}) {
            const auto answers =
                answersTo(before + std::string(command.name), Grammar::Speaker::device);
            EXPECT_EQ(answers, Lines{"? " + std::string(command.name) + " is not for here"});
        }
    }
    EXPECT_EQ(answersTo("on Mute let Mute 1 true", Grammar::Speaker::device), Lines{"ok"});
}

// Fails every reading of a slider, each time with another number.
struct Saboteur final : Runtime::OperationObserver {
    void before(const Runtime::Operation& operation) override {
        if (operation.verb == Runtime::Verb::readPosition) throw Error(++number, "Sabotage");
    }
    Long number = 1000;
};

TEST_F(SessionTest, TheFirstOfSeveralErrorsOfHandlersClosesTheCommand) {
    Saboteur saboteur;
    panel.store().observeWith(&saboteur);
    EXPECT_EQ(answersTo("wait 3000"), Lines{"! 1001 Sabotage"});
    EXPECT_EQ(saboteur.number, 1004);
    EXPECT_EQ(answersTo("get PowerOn"), Lines{"= 0"});
}

TEST_F(SessionTest, CommandsMayBeNestedButNotWithoutEnd) {
    const auto nested = [](int depth) {
        std::string line;
        for (int i = 0; i < depth; ++i) line += "on Mute ";
        return line + "new";
    };
    EXPECT_EQ(answersTo(nested(64)), Lines{"ok"});
    EXPECT_EQ(answersTo(nested(65)), Lines{"? this is nested too deeply"});
    EXPECT_EQ(answersTo(nested(100000)), Lines{"? this is nested too deeply"});
}

TEST_F(SessionTest, KeepsNoMoreThanThereIsRoomFor) {
    std::string last;
    Session session(panel, panel, {}, [&last](std::string_view line) { last = line; });
    const std::string text = ' ' + std::string(100'000, 'x');
    for (const std::string& command :
         {"on Mute call TrimStr" + text, "meanwhile call TrimStr" + text, "answer" + text,
          std::string("meanwhile quit"), std::string("resume")}) {
        const auto fill = [&] {
            std::size_t kept = 0;
            for (session.run(command); last == "ok"; session.run(command)) kept += command.size();
            EXPECT_EQ(last, "! 7 Out of memory") << command;
            return kept;
        };
        const std::size_t kept = fill();
        EXPECT_LT(kept, kMostKept) << command;
        session.run("new");
        EXPECT_EQ(fill(), kept) << command;
        session.run("new");
    }
    for (int i = 0; i < 20'000; ++i) {
        session.run("meanwhile get Mute 1");
        session.run("click Command12");
    }
    EXPECT_EQ(last, "ok") << "what is done takes no room";
}

TEST_F(SessionTest, ALineThatIsNotUtf8IsRefused) {
    for (const std::string_view line : {"get Mute 1\xFF", "call TrimStr \"\xC0\x80\"",
                                        "call TrimStr \"\xED\xA0\x80\"", "\xE2\x82"}) {
        EXPECT_EQ(answersTo(line), Lines{"? the line is not UTF-8"}) << line;
    }
    EXPECT_EQ(answersTo("# caf\xE9"), Lines{});
    EXPECT_EQ(answersTo("get PowerOn\r"), Lines{"= 0"});
}

TEST(TextTest, IsReadBackAsItWasPrinted) {
    EXPECT_EQ(textOf(IntegerArray()), "[]");
    EXPECT_EQ(textOf(IntegerArray(1, {})), "1:[]");
    EXPECT_EQ(textOf(IntegerArray(1, {7, -8})), "[7 -8]");
    EXPECT_EQ(textOf(IntegerArray(-2, {7})), "-2:[7]");
    EXPECT_EQ(textOf(1e10F), "10000000000");
    EXPECT_EQ(textOf(0.1F), "0.1");
    EXPECT_EQ(textOf(16777216.0F), "16777216");
}

}  // namespace
