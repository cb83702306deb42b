#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>

#include "Manager/Link/link_bench.h"

namespace Orvo::Manager {
namespace {

TEST_F(LinkTest, ASocketCarriesCommandsAnswersAndEvents) {
    goOnline();
    EXPECT_EQ(ask("let Connected true\r\nget Mute 1\n"), "ok\n= 0\n");
    EXPECT_EQ(ask("click Command12\n"), "? click is not for here\n");
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    EXPECT_TRUE(station_.situation().isLinkUp);
    ask("on Mute let Mute 1 true\n");
    click(channel(1).muteButton);
    station_.advance(25ms);
    EXPECT_EQ(received(), "event Mute 1\n  ok\n");
    EXPECT_EQ(panel().Mute(1), Boolean(true));
}

TEST_F(LinkTest, APipeBringsCommands) {
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    connectLink();
    station_.advance(25ms);
    other_ = ::open(path_.c_str(), O_WRONLY | O_NONBLOCK);
    send("let Connected true\n");
    station_.advance(25ms);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    hangUp();
    station_.advance(25ms);
    EXPECT_FALSE(isLit(kCommon.linkLamp));
}

TEST_F(LinkTest, ATerminalCarriesCommandsAndAnswers) {
    other_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (::grantpt(other_) != 0 || ::unlockpt(other_) != 0) {
        GTEST_SKIP() << "there are no pseudo-terminals here";
    }
    connectLink(::ptsname(other_));
    station_.advance(25ms);
    send("get Mute 1\n");
    EXPECT_EQ(awaited("= 0\n"), "= 0\n");
}

TEST_F(LinkTest, ABreakShowsAndTheLinkComesBackFresh) {
    goOnline();
    ask("let Connected true\non Mute get Mute 1\nlet Volume 1 -2");
    hangUp();
    station_.advance(25ms);
    EXPECT_FALSE(isLit(kCommon.linkLamp));
    EXPECT_FALSE(station_.situation().isHeard);
    EXPECT_TRUE(station_.situation().connectedTo.ends_with("(not there)"));
    station_.advance(999ms);
    EXPECT_LT(::accept(listener_, nullptr, nullptr), 0);
    station_.advance(25ms);
    pickUp();
    EXPECT_EQ(ask("get Mute 1\n"), "= 0\n");
    click(channel(1).muteButton);
    station_.advance(25ms);
    EXPECT_EQ(received(), "event Mute 1\n");
}

TEST_F(LinkTest, WaitsForWhatIsNotThereYet) {
    connectLink();
    station_.advance(25ms);
    EXPECT_TRUE(station_.situation().connectedTo.ends_with("(not there)"));
    EXPECT_FALSE(station_.situation().silence);
    listenOnSocket();
    station_.advance(1s);
    pickUp();
    EXPECT_EQ(ask("get PowerOn\n"), "= 0\n");
    EXPECT_TRUE(station_.situation().silence);
    std::ofstream(directory_.path() / "plain") << "let PowerOn true\n";
    connectLink(directory_.path() / "plain");
    station_.advance(25ms);
    EXPECT_TRUE(station_.situation().connectedTo.ends_with("(no serial device, pipe or socket)"));
    EXPECT_FALSE(station_.situation().isHeard);
    EXPECT_TRUE(station_.situation().silence) << "the socket's";
}

TEST_F(LinkTest, AMegabyteWithoutALineBreakIsOneRefusal) {
    goOnline();
    std::string answers;
    for (std::size_t sent = 0; sent < 1'000'000;) {
        sent += send(std::string(50'000, 'x'));
        station_.advance(25ms);
        answers += received();
    }
    EXPECT_EQ(answers, "");
    EXPECT_EQ(ask("\nget Mute 1\n"), "? the line is too long\n= 0\n");
}

TEST_F(LinkTest, TheLongestTraceIsOneLine) {
    goOnline();
    std::string line = "on Mute call DisegnaFormaDOnda 1 [";
    for (int sample = 0; sample < 32767; ++sample) line += "-0x8000 ";
    line += "]\n";
    while (!line.empty()) {
        line.erase(0, send(line));
        station_.advance(25ms);
    }
    EXPECT_EQ(awaited("ok\n"), "ok\n");
    click(channel(1).muteButton);
    EXPECT_EQ(awaited("  ok\n"), "event Mute 1\n  ok\n");
    EXPECT_EQ(station_.traces().samples(1).bounds().upper, 32767);
}

TEST_F(LinkTest, AFloodIsHeardForAMomentAtATime) {
    goOnline();
    betweenLooks_ = 1ms;
    std::string flood;
    while (flood.size() < 10'000) flood += "get Mute 1\n";
    send(flood);
    for (int i = 0; i < 50; ++i) {
        station_.advance(25ms);
        const auto answers = received();
        EXPECT_GE(answers.size(), 5 * std::strlen("= 0\n"));
        EXPECT_LT(answers.size(), 8 * std::strlen("= 0\n"));
    }
}

TEST_F(LinkTest, MayAskForAFreshPanelAlsoWhileItAnswersTheOldOne) {
    goOnline();
    EXPECT_EQ(ask("let Mute 1 true\nnew\nget Mute 1\n"), "ok\nok\n= 0\n");
    EXPECT_EQ(ask("on OnOff new\nlet Mute 2 true\n"), "ok\nok\n");
    click(kCommon.powerButton);
    EXPECT_EQ(ask("get Mute 2\n"), "event OnOff\n  ok\n= 0\n");
    click(kCommon.internalDataButton);
    EXPECT_EQ(ask("\n"), "event DownLoad\n") << "the fresh panel's buttons";
}

TEST_F(LinkTest, WhoeverReadsNothingIsCutOff) {
    goOnline();
    ask("on Mute members\n");
    bool isCutOff = false;
    for (int i = 0; i < 20'000 && !isCutOff; ++i) {
        click(channel(1).muteButton);
        if (i % 50 == 0) station_.advance(1ms);
        isCutOff = station_.situation().connectedTo.ends_with("(not there)");
    }
    EXPECT_TRUE(isCutOff);
    EXPECT_LT(received().size(), 3'000'000U);
}

TEST(LinkAddressTest, ReadsASpeedBehindThePath) {
    EXPECT_EQ(LinkAddress::read("/dev/ttyS0@9600").value().speed, 9600U);
    EXPECT_EQ(LinkAddress::read("/run/me@home").value().path, "/run/me@home");
    EXPECT_FALSE(LinkAddress::read("/dev/ttyS0@9601"));
    EXPECT_FALSE(LinkAddress::read("@9600"));
    EXPECT_FALSE(LinkAddress::read(""));
}

}  // namespace
}  // namespace Orvo::Manager
