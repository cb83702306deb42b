#include "Script/completion.h"

#include <gtest/gtest.h>

#include "Script/help.h"

namespace {

using namespace Orvo::Script;
using Words = std::vector<std::string>;

constexpr Grammar kInMemory{.place = Place::inMemory};
constexpr Grammar kInWindow{.place = Place::inWindow};

Words completions(std::string_view before, std::string_view typed) {
    return completions(before, typed, kInMemory);
}

TEST(CompletionTest, OffersWhatMayStandInThePlace) {
    EXPECT_EQ(completions("", "he"), Words{"help"});
    EXPECT_EQ(completions("help ", "in"), Words{"invoke"});
    EXPECT_EQ(completions("help let ", "in"), Words{});
    EXPECT_EQ(completions("", "sho"), Words{"show"});
    EXPECT_EQ(completions("", "sho", kInWindow), (Words{"shot", "show"}));
    EXPECT_EQ(completions("  ", "of"), Words{"off"});
    EXPECT_EQ(completions("let ", "Temp"), Words{"Temperature"});
    EXPECT_EQ(completions("get ", "Temp"), Words{});
    EXPECT_EQ(completions("call ", "Clear"), (Words{"ClearMains", "ClearTest"}));
    EXPECT_EQ(completions("id ", "Tri"), Words{"TrimStr"});
    EXPECT_EQ(completions("on ", "Vol"), Words{"VolumeChange"});
    EXPECT_EQ(completions("on VolumeChange ", "le"), Words{"let"});
    EXPECT_EQ(completions("on VolumeChange on Mute click ", "Command17"), Words{"Command17"});
    EXPECT_EQ(completions("slide ", "Z").size(), 6U);
    EXPECT_EQ(completions("drawing\t", ""),
              (Words{"Picture1", "Picture2", "Picture3", "Picture4"}));
    EXPECT_EQ(completions("show ", "lblTest(5"), Words{"lblTest(5)"});
    EXPECT_EQ(completions("show ", "Scr"), Words{"Screen"});
    EXPECT_EQ(completions("click Command12 ", ""), (Words{"left", "middle", "right"}));
    EXPECT_EQ(completions("set Combo1 ", ""), (Words{"enabled", "visible"}));
    EXPECT_EQ(completions("answer ", ""), Words{"cancel"});
    EXPECT_EQ(completions("get Mute ", ""), Words{});
    EXPECT_EQ(completions("quit ", ""), Words{});
    EXPECT_EQ(completions("nonsense ", ""), Words{});
}

TEST(HelpTest, IsThereForEveryCommandOfAPlace) {
    for (const Grammar& grammar : {kInMemory, kInWindow}) {
        for (const Command& command : allCommands()) {
            const bool isKnown = isAllowed(command, grammar);
            const auto text = help("help " + std::string(command.name), grammar);
            EXPECT_EQ(text == usage(command) + '\n' + std::string(command.help), isKnown) << *text;
            const auto listed = help("help", grammar)->find("\n  " + usage(command) + ' ');
            EXPECT_EQ(listed != std::string::npos, isKnown) << command.name;
        }
    }
    EXPECT_EQ(help("help shot", kInMemory), "There is no command, member or event \"shot\" here");
    EXPECT_EQ(help("help nonsense", kInWindow),
              "There is no command, member or event \"nonsense\" here");
    EXPECT_EQ(help("help let x", kInMemory), "help takes one name, not \"x\" too");
    EXPECT_TRUE(help("help help", kInMemory)->starts_with("help [NAME] "));
    EXPECT_FALSE(help("get Mute 1", kInMemory));
}

TEST(HelpTest, GivesTheContractsOfWhatHasTheName) {
    EXPECT_EQ(help("help reset", kInMemory), "event reset\nNever raised.");
    EXPECT_EQ(help("help poweron", kInMemory),
              "get PowerOn\nThe power state: false at first, then as the host wrote it.\n"
              "let PowerOn Status\nShows the power state.");
}

}  // namespace
