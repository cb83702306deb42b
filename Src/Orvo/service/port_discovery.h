#pragma once

#include <vector>

#include "Orvo/service/platform.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// One port of a print server.
struct PortRecord {
    String PortName;
    String MonitorName;
    String Description;
    Long PortType = 0;
};

/// Lists the ports that the print spooler reports, and reads the texts of its heap. Errors are
/// those of the members of the same subject.
class PortDiscovery {
public:
    explicit PortDiscovery(Platform platform);

    [[nodiscard]] static String trimmed(const String& text);
    [[nodiscard]] String textAt(Long address) const;

    /// Enters the ports of a server, whose name ends at its first NUL, into the table and returns
    /// their number.
    Long discover(const String& server);

    /// The entries that discoveries have made; those above the last one's count are older.
    [[nodiscard]] const auto& ports() const { return arrPorts; }

private:
    class Buffer;
    void store(std::size_t index, std::span<const std::byte> records);

    Platform platform_;
    std::vector<PortRecord> arrPorts;  // as many as there have been, 101 at most
};

}  // namespace Orvo
