#include "Orvo/ports/machine_platform.h"

#include <chrono>
#include <memory>

#include "Orvo/ports/machine_spooler.h"
#include "Orvo/ports/print_server.h"
#include "Orvo/service/block_heap.h"

namespace Orvo::Runtime {

Platform machinePlatform() {
    const auto queues = [](const std::string& server) {
        return printQueues(server, std::chrono::seconds(3));
    };
    return {std::make_shared<MachineSpooler>("/", queues), std::make_shared<BlockHeap>()};
}

}  // namespace Orvo::Runtime
