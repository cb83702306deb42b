#include <gtest/gtest.h>

#include "Manager/Window/options.h"
#include "Manager/Window/platform.h"

namespace Orvo::Manager {
namespace {

std::variant<Options, Ending> parse(const QStringList& words) {
    return parseCommandLine(QStringList("marvane-manager") + words);
}

TEST(CommandLineTest, SaysHowToStartAndWhatToRunRecordAndConnect) {
    const auto start = std::get<Options>(parse(
        {"--zoom", "150", "--tab=2", "--read-only", "--fullscreen", "--simulate", "--reset"}));
    EXPECT_EQ(start.zoom, 150);
    EXPECT_EQ(start.tab, 2);
    EXPECT_TRUE(start.session.isReadOnly && start.isFullScreen && start.forgets);
    EXPECT_EQ(start.session.seed, 1U);
    EXPECT_EQ(std::get<Options>(parse({"--simulate=4294967295"})).session.seed, 4294967295U);
    const auto script = std::get<Options>(parse({"--script", "-", "--keep-going"}));
    EXPECT_EQ(script.script, "-");
    EXPECT_TRUE(script.keepsGoing);
    const auto link = std::get<Options>(
        parse({"--record=session", "--record-answers", "--link", "/dev/ttyS0@9600,7E1"}));
    EXPECT_EQ(link.session.record, "session");
    EXPECT_EQ(link.session.answers, Script::Answers::inFull);
    EXPECT_EQ(link.link.value().text(), "/dev/ttyS0@9600,7E1");
}

TEST(CommandLineTest, RefusesWhatIsWrongAndSaysWhatWouldBeRight) {
    struct Row {
        QStringList words;
        const char* says = "";
    };
    const Row rows[] = {
        {{"--zoom", "49"}, "--zoom takes a whole number from 50 to 800, not \"49\""},
        {{"--zoom", "801"}, "from 50 to 800, not \"801\""},
        {{"--zoom", "big"}, "from 50 to 800, not \"big\""},
        {{"--zoom="}, "from 50 to 800, not \"\""},
        {{"--zoom"}, "zoom"},
        {{"--tab", "0"}, "--tab takes a whole number from 1 to 3, not \"0\""},
        {{"--tab", "4"}, "from 1 to 3, not \"4\""},
        {{"--simulate=-1"}, "--simulate takes a whole number from 0 to 4294967295, not \"-1\""},
        {{"--simulate=4294967296"}, "not \"4294967296\""},
        {{"--simulate", "7"}, "--simulate=7"},
        {{"--read-only=1"}, "read-only"},
        {{"--loud"}, "loud"},
        {{"--script="}, "--script takes the name of a file"},
        {{"--record="}, "--record takes the name of a file"},
        {{"--script", "a", "--record", "b"}, "--script and --record exclude one another"},
        {{"--script", "a", "--reset"}, "--script and --reset exclude one another"},
        {{"--simulate", "--link", "b"}, "--link and --simulate exclude one another"},
        {{"--link", "/dev/ttyS0@9"}, "not \"/dev/ttyS0@9\""},
        {{"file"}, "\"file\" is not expected"},
    };
    for (const Row& row : rows) {
        const auto parsed = parse(row.words);
        const auto* ending = std::get_if<Ending>(&parsed);
        ASSERT_NE(ending, nullptr) << row.says;
        EXPECT_EQ(ending->status, 2) << row.says;
        EXPECT_TRUE(ending->text.contains(row.says)) << ending->text.toStdString();
        EXPECT_TRUE(ending->text.contains("--help")) << row.says;
    }
}

TEST(CommandLineTest, HelpNamesEveryOption) {
    const auto help = std::get<Ending>(parse({"--zoom", "150", "--help"}));
    EXPECT_EQ(help.status, 0);
    for (const char* option : {"--help", "--simulate[=SEED]", "--zoom <PERCENT>", "--read-only",
                               "--link <PATH[@SPEED]>"}) {
        EXPECT_TRUE(help.text.contains(option)) << option;
    }
}

TEST(PlatformTest, ADisplayThatCannotBeReachedLeavesOffscreen) {
    EXPECT_EQ(platformFor(false, false, "KDE"), "offscreen");
    EXPECT_EQ(platformFor(true, false, "KDE"), "xcb;offscreen");
    EXPECT_EQ(platformFor(false, true, "GNOME"), "wayland;offscreen");
    EXPECT_EQ(platformFor(true, true, "KDE"), "wayland;xcb;offscreen");
    EXPECT_EQ(platformFor(true, true, "ubuntu:GNOME"), "xcb;wayland;offscreen");
}

}  // namespace
}  // namespace Orvo::Manager
