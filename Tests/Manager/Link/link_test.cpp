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

TEST_F(LinkTest, ABreakShowsAndTheLinkComesBackFresh) {
    goOnline();
    ask("let Connected true\non Mute get Mute 1\nlet Volume 1 -2");
    hangUp();
    station_.advance(25ms);
    EXPECT_FALSE(isLit(kCommon.linkLamp));
    EXPECT_FALSE(station_.situation().isHeard);
    EXPECT_TRUE(station_.situation().connectedTo.ends_with("(not there, trying again)"));
    station_.advance(999ms);
    EXPECT_FALSE(isOnline());
    station_.advance(25ms);
    EXPECT_EQ(ask("get Mute 1\n"), "= 0\n");
    click(channel(1).muteButton);
    station_.advance(25ms);
    EXPECT_EQ(received(), "event Mute 1\n");
}

TEST_F(LinkTest, SaysWhyItIsNotOpenAndTriesAgain) {
    for (const auto& [reason, words] :
         {std::pair(std::errc::no_such_file_or_directory, "not there"),
          std::pair(std::errc::permission_denied, "you may not open it"),
          std::pair(std::errc::device_or_resource_busy, "in use by another program"),
          std::pair(std::errc::inappropriate_io_control_operation,
                    "no serial device, pipe or socket"),
          std::pair(std::errc::connection_refused, "nobody listens there"),
          std::pair(std::errc::not_supported, "no such speed or format on this device")}) {
        trouble_ = std::make_error_code(reason);
        connectLink();
        EXPECT_EQ(station_.situation().connectedTo, "Link to /dev/link (opening)");
        station_.advance(25ms);
        EXPECT_EQ(station_.situation().connectedTo,
                  std::string("Link to /dev/link (") + words + ", trying again)");
        EXPECT_FALSE(station_.situation().silence);
    }
    trouble_.clear();
    station_.advance(1s);
    EXPECT_EQ(station_.situation().connectedTo, "Link to /dev/link");
    EXPECT_EQ(ask("get PowerOn\n"), "= 0\n");
    EXPECT_TRUE(station_.situation().silence);
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
    EXPECT_EQ(station_.traces().trace(1).samples.bounds().upper, 32767);
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
        isCutOff = station_.situation().connectedTo.ends_with("(not there, trying again)");
    }
    EXPECT_TRUE(isCutOff);
    EXPECT_LT(received().size(), 3'000'000U);
}

TEST(LinkAddressTest, ReadsWhatALineIsSetToBehindThePath) {
    for (const char* text : {"/dev/ttyS0", "/dev/ttyS0@9600", "/dev/ttyS0@12345,7E2",
                             "/dev/ttyS0@50,5M1", "/run/me@home", "/run/me@9600baud", "a@b@300"}) {
        EXPECT_EQ(LinkAddress::read(text).value().text(), text);
    }
    const auto line = LinkAddress::read("/dev/ttyS0@4000000,7O2").value().line.value();
    EXPECT_EQ(line.speed, 4'000'000U);
    EXPECT_TRUE(line.dataBits == 7 && line.parity == Parity::odd && line.stopBits == 2);
    for (const char* text : {"", "@9600", "/dev/ttyS0@49", "/dev/ttyS0@4000001", "/dev/ttyS0@9600,",
                             "/dev/ttyS0@9600,4N1", "/dev/ttyS0@9600,8X1", "/dev/ttyS0@9600,8N3",
                             "/dev/ttyS0@9600,8N1 ", "/dev/ttyS0@99999999999"}) {
        EXPECT_FALSE(LinkAddress::read(text)) << text;
    }
}

}  // namespace
}  // namespace Orvo::Manager
