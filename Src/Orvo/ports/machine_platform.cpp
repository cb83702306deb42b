#include "Orvo/ports/machine_platform.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "Orvo/ports/machine_spooler.h"
#include "Orvo/ports/print_server.h"
#include "Orvo/service/block_heap.h"

namespace Orvo::Runtime {
namespace {

std::optional<Ports> noQueues(const std::string& /*server*/) { return std::nullopt; }

std::optional<Ports> queuesInTime(const std::string& server) {
    return printQueues(server, std::chrono::seconds(2));
}

}  // namespace

Platform machinePlatform(PrintServers printServers) {
    const auto queues = printServers == PrintServers::asked ? queuesInTime : noQueues;
    return {std::make_shared<MachineSpooler>("/", queues), std::make_shared<BlockHeap>()};
}

}  // namespace Orvo::Runtime
