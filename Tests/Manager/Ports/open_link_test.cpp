#include "Manager/Ports/open_link.h"

#include <array>
#include <fstream>
#include <system_error>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <termios.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>

#include "Manager/Ports/offered_ports.h"
#include "Support/pseudo_terminal.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using Script::FileDescriptor;

class OpenLinkTest : public testing::Test {
protected:
    void SetUp() override {
        if (!terminal_.isThere()) GTEST_SKIP() << "there are no pseudo-terminals here";
        ::mkfifo(file("pipe").c_str(), 0600);
        std::ofstream(file("plain")) << "let PowerOn true\n";
        ASSERT_TRUE(server_.listen(QString::fromStdString(file("socket"))));
    }

    [[nodiscard]] std::string file(const char* name) const { return directory_.path() / name; }

    static std::unique_ptr<ByteStream> open(const std::string& address) {
        return openLink(LinkAddress::read(address).value());
    }
    static int reasonAgainst(const std::string& address) {
        try {
            open(address);
            return 0;
        } catch (const std::system_error& failure) {
            return failure.code().value();
        }
    }

    /// Until something is heard, or the end, or nothing for a long time.
    static std::string heard(ByteStream& stream) {
        std::array<char, 100> bytes{};
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 5000; QCoreApplication::processEvents()) {
            const auto count = stream.read(bytes);
            if (!count) return "the end";
            if (*count > 0) return {bytes.data(), *count};
        }
        return "nothing";
    }

    [[nodiscard]] speed_t speed() const {
        termios settings{};
        ::tcgetattr(terminal_.end(), &settings);
        return ::cfgetospeed(&settings);
    }

    Tests::TemporaryDirectory directory_;
    Tests::PseudoTerminal terminal_;
    QLocalServer server_;
};

TEST_F(OpenLinkTest, SaysWhyNothingCanBeOpened) {
    EXPECT_EQ(reasonAgainst(file("nothing")), ENOENT);
    EXPECT_EQ(reasonAgainst(file("plain/below")), ENOTDIR);
    EXPECT_EQ(reasonAgainst(file("plain")), ENOTTY);
    EXPECT_EQ(reasonAgainst(directory_.path()), ENOTTY);
    EXPECT_EQ(reasonAgainst("/dev/null"), ENOTTY);
    const auto first = open(terminal_.path());
    EXPECT_EQ(accessTo(QString::fromStdString(terminal_.path())), "In use by this program");
    EXPECT_EQ(reasonAgainst(terminal_.path()), EBUSY);
    std::filesystem::rename(file("socket"), file("left"));
    server_.close();
    EXPECT_EQ(reasonAgainst(file("left")), ECONNREFUSED);
}

TEST_F(OpenLinkTest, ATerminalCarriesBytesBothWaysAndKeepsItsSpeedUnlessAnotherIsWanted) {
    termios settings{};
    ::tcgetattr(terminal_.end(), &settings);
    ::cfmakeraw(&settings);
    ::cfsetspeed(&settings, B4800);
    ::tcsetattr(terminal_.end(), TCSANOW, &settings);
    for (const auto& [line, speed] : {std::pair("", B4800), std::pair("@19200,7E2", B19200)}) {
        ASSERT_EQ(::write(terminal_.end(), "early\n", 6), 6);
        const auto stream = open(terminal_.path() + line);
        EXPECT_EQ(this->speed(), speed) << line;
        EXPECT_EQ(heard(*stream), "early\n") << line;
        EXPECT_EQ(stream->write("reply\r\n"), 7U);
        std::array<char, 100> bytes{};
        ssize_t count = 0;
        for (int i = 0; i < 1000 && count <= 0; ++i) {
            QCoreApplication::processEvents();
            count = ::read(terminal_.end(), bytes.data(), bytes.size());
        }
        EXPECT_EQ(std::string(bytes.data(), std::size_t(count)), "reply\r\n") << line;
    }
    EXPECT_EQ(speed(), B4800) << "given back";
    EXPECT_EQ(accessTo(QString::fromStdString(terminal_.path())), mayBeOpened());
    const auto last = open(terminal_.path());
    terminal_.hangUp();
    EXPECT_EQ(heard(*last), "the end");
}

TEST_F(OpenLinkTest, ASocketIsHeardToItsEndAndTakesNoMoreThanIsRead) {
    auto stream = open(file("socket"));
    ASSERT_TRUE(server_.waitForNewConnection(5000));
    auto* other = server_.nextPendingConnection();
    other->write("last words");
    other->flush();
    delete other;
    EXPECT_EQ(heard(*stream), "last words");
    EXPECT_EQ(heard(*stream), "the end");
    EXPECT_EQ(stream->write("x"), std::nullopt);

    stream = open(file("socket"));
    ASSERT_TRUE(server_.waitForNewConnection(5000));
    server_.nextPendingConnection()->setReadBufferSize(1);
    std::size_t taken = 0;
    const std::string much(1 << 20, 'x');
    for (int i = 0; i < 100; ++i, QCoreApplication::processEvents()) {
        taken += stream->write(much).value();
    }
    EXPECT_LT(taken, much.size());
}

TEST_F(OpenLinkTest, APipeIsWaitedForAndHeard) {
    const auto stream = open(file("pipe"));
    std::array<char, 100> bytes{};
    EXPECT_EQ(stream->read(bytes), 0U);
    EXPECT_EQ(stream->write("dropped"), 7U);
    FileDescriptor other(::open(file("pipe").c_str(), O_WRONLY | O_NONBLOCK));
    ASSERT_EQ(::write(other.get(), "let", 3), 3);
    EXPECT_EQ(heard(*stream), "let");
    other = FileDescriptor();
    EXPECT_EQ(heard(*stream), "the end");
}

}  // namespace
}  // namespace Orvo::Manager
