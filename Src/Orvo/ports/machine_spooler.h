#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "Orvo/ports/port_records.h"
#include "Orvo/service/platform.h"

namespace Orvo::Runtime {

/// Enumerates the ports of this machine, and the queues of print servers.
///
/// This machine is "" or its host name, in capitals or not, with or without two leading
/// backslashes: its serial and parallel ports, then the queues of its print server, if one answers.
/// Any other name is a print server's, and the call fails when that does not answer.
///
/// Whoever asks for the size first gets from the next call what was listed then, so that a server
/// is not waited for twice. All calls from one thread.
class MachineSpooler final : public PortSpooler {
public:
    /// The queues of a print server (UTF-8, "" for this machine's); none when it does not answer.
    using QueueSource = std::function<std::optional<Ports>(const std::string& server)>;

    /// `root` is the directory that the device tree is read below.
    MachineSpooler(std::filesystem::path root, QueueSource queues);

    bool enumPorts(const std::string& server, Long level, Long address, std::span<std::byte> buffer,
                   Long& needed, Long& count) override;

private:
    struct Listing {
        std::string server;
        std::optional<Ports> ports;
    };

    [[nodiscard]] Listing list(const std::string& server) const;
    [[nodiscard]] bool isThisMachine(const std::string& host) const;
    [[nodiscard]] Ports localPorts() const;

    std::filesystem::path root_;
    QueueSource queues_;
    std::optional<Listing> sized_;  // what the last size query found
};

}  // namespace Orvo::Runtime
