#include "Orvo/ports/machine_spooler.h"

#include <fstream>
#include <utility>

#include "Orvo/ports/device_ports.h"
#include "Orvo/values/ansi.h"
#include "Orvo/values/ignoring_case.h"
#include "Orvo/values/text.h"

namespace Orvo::Runtime {
namespace {

std::string hostOf(const std::string& server) {
    const std::string host = server.starts_with("\\\\") ? server.substr(2) : server;
    return toUtf8(fromAnsi(host));
}

}  // namespace

MachineSpooler::MachineSpooler(std::filesystem::path root, QueueSource queues)
    : root_(std::move(root)), queues_(std::move(queues)) {}

bool MachineSpooler::enumPorts(const std::string& server, Long level, Long address,
                               std::span<std::byte> buffer, Long& needed, Long& count) {
    needed = 0;
    count = 0;
    if (level != kLevel) return false;
    const bool isSizeQuery = address == 0;
    auto listing = std::exchange(sized_, std::nullopt);
    if (isSizeQuery || !listing || listing->server != server) listing = list(server);
    if (isSizeQuery) sized_ = listing;
    return listing->ports && writePortRecords(*listing->ports, address, buffer, needed, count);
}

MachineSpooler::Listing MachineSpooler::list(const std::string& server) const {
    const std::string host = hostOf(server);
    return {server, isThisMachine(host) ? localPorts() : queues_(host)};
}

bool MachineSpooler::isThisMachine(const std::string& host) const {
    std::string ownName;
    std::getline(std::ifstream(root_ / "proc/sys/kernel/hostname"), ownName);
    return host.empty() || equalIgnoringCase<char>(host, ownName);
}

Ports MachineSpooler::localPorts() const {
    Ports ports = devicePorts(root_);
    if (const auto queues = queues_({})) ports.insert(ports.end(), queues->begin(), queues->end());
    return ports;
}

}  // namespace Orvo::Runtime
