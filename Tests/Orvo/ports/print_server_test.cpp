#include "Orvo/ports/print_server.h"

#include <sstream>

#include "Orvo/ports/machine_platform.h"
#include "Orvo/ports/print_server_process.h"
#include "Orvo/service/port_discovery.h"
#include "Support/bench.h"
#include "Support/spooler.h"

namespace Orvo::Tests {
namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

constexpr const char* kQueues = R"(
<Printer bench>
Info Prüfplatz €
DeviceURI socket://192.0.2.1:9100
State Idle
Accepting Yes
</Printer>
<Printer label>
Info Labels
DeviceURI serial:/dev/ttyS9?baud=9600
State Idle
Accepting Yes
</Printer>
)";
constexpr const char* kEverybody = "Order allow,deny\nAllow all";
constexpr const char* kNobodyWithoutPassword = "AuthType Basic\nRequire valid-user";

std::string chunk(std::size_t size) {
    std::ostringstream text;
    text << std::hex << size << "\r\n" << std::string(size, '\4') << "\r\n";
    return text.str();
}

TEST(PrintServer, MayNotBeThere) {
    const LoopbackPort refusing;
    for (const std::string& server : {refusing.address(), std::string("no server:at all"),
                                      std::string("[::1"), std::string("name.invalid")}) {
        EXPECT_FALSE(Runtime::printQueues(server, 100ms)) << server;
    }
}

TEST(PrintServer, IsNotConnectedToWhenLeftAlone) {
    const LoopbackPort server;
    server.listen();
    PortDiscovery discovery(Runtime::machinePlatform(Runtime::PrintServers::leftAlone));
    EXPECT_EQ(discovery.discover(fromUtf8(server.address())), 0);
    EXPECT_LT(server.accept(0ms), 0);
}

// Needs a library that can talk to a server.
class ConversationTest : public testing::Test {
protected:
    void SetUp() override {
#ifndef ORVO_PORTS_USE_CUPS
        GTEST_SKIP() << "built without CUPS (libcups2-dev)";
#endif
    }
};

// Needs a server, too.
class PrintServerTest : public ConversationTest {
protected:
    void SetUp() override {
        ConversationTest::SetUp();
        if (IsSkipped()) return;
        if (!PrintServerProcess::program()) GTEST_SKIP() << "no cupsd here (package cups-daemon)";
    }
};

// Those whose time has not run out are ended for what they say.
TEST_F(ConversationTest, EndsInTimeWhateverIsSaid) {
    struct Case {
        const char* label;
        Speech speech;
        std::chrono::milliseconds limit;
    };
    const std::string head = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    for (const auto& [label, speech, limit] :
         {Case{"nothing", {}, 50ms},
          Case{"no end of headers", {"HTTP/1.1 200 OK\r\n", "A: b\r\n"}, 50ms},
          Case{"no end of a header", {"HTTP/1.1 200 OK\r\nA: ", "b", 1ms}, 50ms},
          Case{"never yet", {"", "HTTP/1.1 100 Continue\r\n\r\n"}, 50ms},
          Case{"byte by byte", {head, chunk(1), 1ms}, 50ms},
          Case{"too much", {head, chunk(65536)}, 1h},
          Case{"too large a piece", {head + "ffffffffffff\r\n", "xxxx"}, 1h},
          Case{"no listing", {head + chunk(7) + chunk(0), ""}, 1h},
          Case{"a refusal", {"HTTP/1.1 401 Unauthorized\r\n\r\n", ""}, 1h}}) {
        SpeakingServer server(speech);
        EXPECT_FALSE(Runtime::printQueues(server.address(), limit)) << label;
        EXPECT_TRUE(server.isHungUpOn()) << label;
    }
}

TEST_F(PrintServerTest, ListsItsQueues) {
    const PrintServerProcess server(kQueues, kEverybody);
    ASSERT_TRUE(server.isRunning()) << server.log();
    const String port = fromUtf8(server.port());
    for (const String& name : {u"127.0.0.1:" + port, u"\\\\localhost:" + port}) {
        PortDiscovery discovery(Runtime::machinePlatform());
        EXPECT_EQ(discovery.discover(name), 2) << server.log();
        EXPECT_EQ(shown(discovery.ports()[0]), "bench, socket, Prüfplatz €, 9");
        EXPECT_EQ(shown(discovery.ports()[1]), "label, serial, Labels, 1");
        MarvaneAssistant panel(Runtime::Store::create(), Runtime::machinePlatform());
        EXPECT_EQ(panel.GetAvailablePorts(name), 2);
    }
}

TEST_F(PrintServerTest, MayHaveNoQueues) {
    const PrintServerProcess server("", kEverybody);
    ASSERT_TRUE(server.isRunning()) << server.log();
    const auto queues = Runtime::printQueues("127.0.0.1:" + server.port(), 5s);
    ASSERT_TRUE(queues) << server.log();
    EXPECT_TRUE(queues->empty());
}

TEST_F(PrintServerTest, RefusesWhoHasNoPassword) {
    const PrintServerProcess server(kQueues, kNobodyWithoutPassword);
    ASSERT_TRUE(server.isRunning()) << server.log();
    EXPECT_FALSE(Runtime::printQueues("127.0.0.1:" + server.port(), 5s));
}

}  // namespace
}  // namespace Orvo::Tests
