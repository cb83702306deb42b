#include "Orvo/ports/port_records.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "Orvo/values/ansi.h"

namespace Orvo::Runtime {
namespace {

// Where in the image the text begins that is added at its end.
Long appendText(std::string& image, const String& text) {
    const std::size_t start = image.size();
    image += toAnsi(text);
    image += '\0';
    return static_cast<Long>(start);
}

std::string layOut(std::span<const PortRecord> ports, Long address) {
    std::string image(ports.size() * PortSpooler::kRecordSize, '\0');
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const std::array<Long, 5> fields{address + appendText(image, ports[i].PortName),
                                         address + appendText(image, ports[i].MonitorName),
                                         address + appendText(image, ports[i].Description),
                                         ports[i].PortType, 0};
        static_assert(sizeof fields == PortSpooler::kRecordSize);
        std::memcpy(&image[i * sizeof fields], fields.data(), sizeof fields);
    }
    return image;
}

}  // namespace

bool writePortRecords(std::span<const PortRecord> ports, Long address, std::span<std::byte> buffer,
                      Long& needed, Long& count) {
    const std::string image = layOut(ports, address);
    needed = static_cast<Long>(image.size());
    count = 0;
    if (buffer.size() < image.size()) return false;
    std::ranges::copy(std::as_bytes(std::span(image)), buffer.begin());
    count = static_cast<Long>(ports.size());
    return true;
}

}  // namespace Orvo::Runtime
