#include "Orvo/ports/print_server.h"

namespace Orvo::Runtime {

std::optional<Ports> printQueues(const std::string& /*server*/,
                                 std::chrono::milliseconds /*limit*/) {
    return std::nullopt;
}

}  // namespace Orvo::Runtime
