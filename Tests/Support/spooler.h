#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Orvo/ports/port_records.h"
#include "Orvo/values/text.h"

namespace Orvo::Tests {

/// A spooler in memory, which answers the two calls of a discovery as it was told.
class ScriptedSpooler final : public PortSpooler {
public:
    struct Answer {
        Runtime::Ports ports;
        bool succeeds = true;
        std::optional<Long> count;  // said instead of the number of ports
    };

    /// Makes both calls find these ports.
    void list(const Runtime::Ports& ports) { sizeQuery.ports = fillCall.ports = ports; }

    bool enumPorts(const std::string& server, Long /*level*/, Long address,
                   std::span<std::byte> buffer, Long& needed, Long& count) override {
        const Answer& answer = calls_++ % 2 == 0 ? sizeQuery : fillCall;
        askedServer = server;
        const bool fits = Runtime::writePortRecords(answer.ports, address, buffer, needed, count);
        if (fits && spoil) spoil(buffer);
        count = answer.count.value_or(count);
        return fits && answer.succeeds;
    }

    Answer sizeQuery;
    Answer fillCall;
    std::function<void(std::span<std::byte>)> spoil;  // done to each buffer once it is filled
    std::string askedServer;

private:
    int calls_ = 0;
};

/// A port in one line: "/dev/ttyS0, serial, Serial port, 3".
inline std::string shown(const PortRecord& port) {
    return toUtf8(port.PortName + u", " + port.MonitorName + u", " + port.Description + u", ") +
           std::to_string(port.PortType);
}

inline std::vector<std::string> shown(const Runtime::Ports& ports) {
    std::vector<std::string> lines;
    for (const PortRecord& port : ports) lines.push_back(shown(port));
    return lines;
}

}  // namespace Orvo::Tests
