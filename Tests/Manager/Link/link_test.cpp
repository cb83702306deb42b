#include <algorithm>
#include <chrono>
#include <cstring>
#include <fstream>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "Manager/Link/link_device.h"
#include "Manager/Station/station.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// A station whose link leads to this test.
class LinkTest : public Tests::OwnedPanel {
protected:
    ~LinkTest() override {
        hangUp();
        if (listener_ >= 0) ::close(listener_);
    }

    void connectLink() { connectLink(path_); }
    void connectLink(const std::string& path) {
        station_.connect([this, path] {
            return std::make_unique<LinkDevice>(owner_, LinkAddress{path},
                                                [this] { return now_ += betweenLooks_; });
        });
    }

    void listenOnSocket() {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        std::strncpy(name.sun_path, path_.c_str(), sizeof name.sun_path - 1);
        listener_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
        ASSERT_EQ(::bind(listener_, reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
        ASSERT_EQ(::listen(listener_, 1), 0);
    }

    /// The station has connected to the socket.
    void pickUp() {
        other_ = ::accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK);
        ASSERT_GE(other_, 0);
    }

    void goOnline() {
        listenOnSocket();
        connectLink();
        station_.advance(25ms);
        pickUp();
    }

    void hangUp() {
        if (other_ >= 0) ::close(other_);
        other_ = -1;
    }

    /// As much as fits.
    std::size_t send(const std::string& text) const {
        return std::size_t(std::max<ssize_t>(0, ::write(other_, text.data(), text.size())));
    }

    std::string received() const {
        std::string text;
        std::string piece(65536, ' ');
        for (ssize_t count = 0; (count = ::read(other_, piece.data(), piece.size())) > 0;) {
            text.append(piece, 0, std::size_t(count));
        }
        return text;
    }

    /// All up to this end, or what there is after a long time.
    std::string awaited(const std::string& end) {
        std::string text;
        for (int i = 0; i < 1000 && !text.ends_with(end); ++i) {
            station_.advance(25ms);
            text += received();
        }
        return text;
    }

    std::string ask(const std::string& text) {
        send(text);
        station_.advance(25ms);
        return received();
    }

    Tests::TemporaryDirectory directory_;
    std::string path_ = directory_.path() / "link";
    int listener_ = -1;
    int other_ = -1;
    // A clock that moves by so much whenever it is looked at.
    std::chrono::steady_clock::time_point now_;
    std::chrono::milliseconds betweenLooks_{0};
    Station station_{owner_};
};

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
    EXPECT_TRUE(station_.situation().showsOldValues) << "the socket's";
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

TEST_F(LinkTest, HandlersAreCounted) {
    goOnline();
    std::string answer;
    for (int i = 0; i < 101; ++i) answer = ask("on Mute get Mute 1\n");
    EXPECT_EQ(answer, "! 7 Out of memory\n");
}

TEST(LinkAddress, ReadsASpeedBehindThePath) {
    EXPECT_EQ(LinkAddress::read("/dev/ttyS0@9600").value().speed, 9600U);
    EXPECT_EQ(LinkAddress::read("/run/me@home").value().path, "/run/me@home");
    EXPECT_FALSE(LinkAddress::read("/dev/ttyS0@9601"));
    EXPECT_FALSE(LinkAddress::read("@9600"));
    EXPECT_FALSE(LinkAddress::read(""));
}

}  // namespace
}  // namespace Orvo::Manager
