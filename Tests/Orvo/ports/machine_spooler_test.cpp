#include "Orvo/ports/machine_spooler.h"

#include "Orvo/service/block_heap.h"
#include "Orvo/service/port_discovery.h"
#include "Support/bench.h"
#include "Support/spooler.h"
#include "Support/temporary_directory.h"

namespace Orvo::Tests {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kDevice = "/dev/ttyS0, , Serial port, 3";
constexpr const char* kQueue = "queue, usb, A printer, 1";

// A machine named "Rack" with one port, and whatever print servers there are.
class MachineSpoolerTest : public testing::Test {
protected:
    MachineSpoolerTest() {
        root_.add({"proc/sys/kernel/hostname = Rack\n", "sys/devices/a/",
                   "sys/class/tty/ttyS0/device -> sys/devices/a", "dev/ttyS0 = "});
    }

    Lines discover(const String& server) {
        PortDiscovery discovery({spooler_, std::make_shared<BlockHeap>()});
        const auto count = discovery.discover(server);
        return shown({discovery.ports().begin(), discovery.ports().begin() + count});
    }

    TemporaryDirectory root_;
    std::optional<Runtime::Ports> queues_{{{u"queue", u"usb", u"A printer", 1}}};
    Lines asked_;
    std::shared_ptr<Runtime::MachineSpooler> spooler_ =
        std::make_shared<Runtime::MachineSpooler>(root_.path(), [this](const std::string& server) {
            asked_.push_back(server);
            return queues_;
        });
};

TEST_F(MachineSpoolerTest, TellsThisMachineFromAPrintServer) {
    struct Case {
        String server;
        std::string asked;
        Lines ports;
        Lines portsWhenNoneAnswers;
    };
    const Lines both{kDevice, kQueue};
    for (const Case& row :
         {Case{u"", "", both, {kDevice}}, Case{u"\\\\", "", both, {kDevice}},
          Case{u"rACK", "", both, {kDevice}}, Case{u"\\\\RACK", "", both, {kDevice}},
          Case{u"rack2", "rack2", {kQueue}, {}}, Case{u"\\\\büro:631", "büro:631", {kQueue}, {}}}) {
        SCOPED_TRACE(toUtf8(row.server));
        asked_.clear();
        EXPECT_EQ(discover(row.server), row.ports);
        EXPECT_EQ(asked_, Lines{row.asked});
        const auto queues = std::exchange(queues_, std::nullopt);
        EXPECT_EQ(discover(row.server), row.portsWhenNoneAnswers);
        EXPECT_EQ(asked_, Lines(2, row.asked)) << "a server is not waited for twice";
        queues_ = queues;
    }
}

TEST_F(MachineSpoolerTest, AnswersAsTheSpoolerDoes) {
    struct Call {
        const char* label;
        const char* server;
        Long level;
        std::size_t missing;  // bytes that the buffer lacks
        bool succeeds;
    };
    constexpr Long kNeeded = 20 + sizeof "queue" + sizeof "usb" + sizeof "A printer";
    for (const auto& [label, server, level, missing, succeeds] :
         {Call{"as it should be", "a", 2, 0, true}, Call{"buffer too small", "a", 2, 1, false},
          Call{"another level", "a", 1, 0, false}, Call{"size not asked for", "b", 2, 0, true}}) {
        Long needed = 0;
        Long count = 7;
        EXPECT_FALSE(spooler_->enumPorts("a", 2, 0, {}, needed, count)) << label;
        EXPECT_EQ(needed, kNeeded) << label;
        EXPECT_EQ(count, 0) << label;
        std::vector<std::byte> buffer(static_cast<std::size_t>(kNeeded) - missing);
        EXPECT_EQ(spooler_->enumPorts(server, level, 4096, buffer, needed, count), succeeds)
            << label;
        EXPECT_EQ(count, succeeds ? 1 : 0) << label;
        EXPECT_EQ(needed, level == 2 ? kNeeded : 0) << label;
    }
    EXPECT_EQ(asked_, (Lines{"a", "a", "a", "a", "b"}));
}

}  // namespace
}  // namespace Orvo::Tests
