#include "Orvo/ports/queue_listing.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Orvo/values/text.h"

namespace Orvo::Runtime {
namespace {

enum Tag : unsigned {
    endOfAttributes = 0x03,
    printerGroup = 0x04,
    lastDelimiter = 0x0F,
    textWithLanguage = 0x35,
    nameWithLanguage = 0x36,
};

enum Status : unsigned { firstRefusal = 0x0200, notFound = 0x0406 };

constexpr auto kNetworkBackEnds = std::to_array<std::string_view>(
    {"dnssd", "http", "https", "ipp", "ipps", "lpd", "smb", "socket"});

/// What is thrown where more is announced than there is.
struct Truncated {};

class Fields {
public:
    explicit Fields(std::string_view bytes) : rest_(bytes) {}

    std::string_view bytes(std::size_t count) {
        if (count > rest_.size()) throw Truncated{};
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }
    unsigned number(std::size_t size) {
        unsigned value = 0;
        for (const char byte : bytes(size)) value = value << 8U | static_cast<unsigned char>(byte);
        return value;
    }
    std::string_view text() { return bytes(number(2)); }

private:
    std::string_view rest_;
};

std::string_view textOf(unsigned tag, std::string_view value) {
    if (tag != textWithLanguage && tag != nameWithLanguage) return value;
    Fields parts(value);
    parts.text();
    return parts.text();
}

void enter(PortRecord& port, std::string_view attribute, std::string_view value) {
    if (attribute == "printer-name") {
        port.PortName = fromUtf8(value);
    } else if (attribute == "printer-info") {
        port.Description = fromUtf8(value);
    } else if (attribute == "device-uri") {
        const std::string_view backEnd = value.substr(0, value.find(':'));
        port.MonitorName = fromUtf8(backEnd);
        if (std::ranges::find(kNetworkBackEnds, backEnd) != kNetworkBackEnds.end()) {
            port.PortType |= PortSpooler::netAttached;
        }
    }
}

// Each printer is a group of attributes. What belongs to another attribute, such as the members of
// a collection however deep, has no name of its own.
Ports portsIn(Fields& fields) {
    Ports ports;
    unsigned group = 0;
    bool isNew = false;
    for (unsigned tag = fields.number(1); tag != endOfAttributes; tag = fields.number(1)) {
        if (tag <= lastDelimiter) {
            group = tag;
            isNew = true;
            continue;
        }
        const std::string_view name = fields.text();
        const std::string_view value = fields.text();
        if (group != printerGroup) continue;
        if (isNew) ports.push_back({{}, {}, {}, PortSpooler::write});
        isNew = false;
        enter(ports.back(), name, textOf(tag, value));
    }
    return ports;
}

std::optional<Ports> read(Fields fields) {
    fields.number(2);  // the version
    const unsigned status = fields.number(2);
    fields.number(4);  // the request's number
    if (status == notFound) return Ports();
    if (status >= firstRefusal) return std::nullopt;
    return portsIn(fields);
}

}  // namespace

std::optional<Ports> queuesIn(std::string_view answer) {
    try {
        return read(Fields(answer));
    } catch (const Truncated&) {
        return std::nullopt;
    }
}

}  // namespace Orvo::Runtime
