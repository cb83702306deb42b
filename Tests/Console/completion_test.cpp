#include "Console/completion.h"

#include <gtest/gtest.h>

#include "Console/help.h"

namespace {

using namespace Orvo::Console;
using Words = std::vector<std::string>;

TEST(Completion, offersWhatMayStandInThePlace) {
    EXPECT_EQ(completions("", "he"), Words{"help"});
    EXPECT_EQ(completions("help ", "in"), Words{"invoke"});
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

TEST(Help, isThereForEveryCommand) {
    for (const Command& command : allCommands()) {
        const auto text = help("help " + std::string(command.name));
        EXPECT_EQ(text, usage(command) + '\n' + std::string(command.help));
        EXPECT_NE(help("help")->find("\n  " + usage(command) + ' '), std::string::npos);
    }
    EXPECT_EQ(help("help nonsense"), "There is no command \"nonsense\"");
    EXPECT_FALSE(help("get Mute 1"));
}

}  // namespace
