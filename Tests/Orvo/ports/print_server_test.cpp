#include "Orvo/ports/print_server.h"

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

TEST(PrintServer, FailsWhenItDoesNotAnswer) {
    const LoopbackPort refusing;
    const LoopbackPort silent;
    silent.listen();
    for (const std::string& server :
         {"127.0.0.1:" + std::to_string(refusing.number()),
          "127.0.0.1:" + std::to_string(silent.number()), std::string("no server:at all"),
          std::string("[::1"), std::string("name.invalid")}) {
        EXPECT_FALSE(Runtime::printQueues(server, 100ms)) << server;
    }
}

// The rest needs a server, and a library that can talk to it.
class PrintServerTest : public testing::Test {
protected:
    void SetUp() override {
#ifndef ORVO_PORTS_USE_CUPS
        GTEST_SKIP() << "built without CUPS (libcups2-dev)";
#endif
        if (!PrintServerProcess::program()) GTEST_SKIP() << "no cupsd here (package cups-daemon)";
    }
};

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
