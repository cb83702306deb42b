#include "Orvo/service/port_discovery.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "Orvo/service/block_heap.h"
#include "Orvo/values/ansi.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/error.h"

namespace Orvo {
namespace {

constexpr std::size_t kMostPorts = 101;

Long field(std::span<const std::byte> record, std::size_t index) {
    Long value = 0;
    std::memcpy(&value, record.subspan(index * sizeof value, sizeof value).data(), sizeof value);
    return value;
}

}  // namespace

// A block of the heap for as long as the discovery runs, whichever way that ends.
class PortDiscovery::Buffer {
public:
    Buffer(ProcessHeap& heap, Long size)
        : heap_(heap),
          size_(static_cast<std::size_t>(std::max(size, Long{0}))),
          address_(heap.allocate(size_)) {}
    ~Buffer() {
        if (address_ != 0) heap_.release(address_);
    }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    [[nodiscard]] Long address() const { return address_; }
    // As many as were asked for, whatever the heap rounds its blocks up to.
    [[nodiscard]] std::span<std::byte> bytes() const {
        const auto block = heap_.bytesFrom(address_);
        return block.first(std::min(size_, block.size()));
    }

private:
    ProcessHeap& heap_;
    std::size_t size_;
    Long address_;
};

PortDiscovery::PortDiscovery(Platform platform) : platform_(std::move(platform)) {
    if (!platform_.heap) platform_.heap = std::make_shared<BlockHeap>();
}

String PortDiscovery::trimmed(const String& text) {
    const std::size_t end = text.find(u'\0');
    if (end == String::npos) return text;
    const Integer position = toInteger(static_cast<std::int64_t>(end) + 1);
    return text.substr(0, static_cast<std::size_t>(position - 1));
}

String PortDiscovery::textAt(Long address) const {
    if (address == 0) return {};
    const auto bytes = platform_.heap->bytesFrom(address);
    const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
    if (end == bytes.end()) throw Errors::invalidCall();
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()),
                                static_cast<std::size_t>(end - bytes.begin()));
    return trimmed(fromAnsi(text));
}

Long PortDiscovery::discover(const String& server) {
    if (!platform_.spooler) return 0;
    const std::string name = toAnsi(StringView(server).substr(0, server.find(u'\0')));
    PortSpooler& spooler = *platform_.spooler;
    Long needed = 0;
    Long count = 0;
    spooler.enumPorts(name, PortSpooler::kLevel, 0, {}, needed, count);
    const Buffer buffer(*platform_.heap, needed);
    const bool filled = spooler.enumPorts(name, PortSpooler::kLevel, buffer.address(),
                                          buffer.bytes(), needed, count);
    if (!filled) return count;
    const Integer last = toInteger(std::int64_t{count} - 1);
    for (Integer i = 0; i <= last; ++i) store(static_cast<std::size_t>(i), buffer.bytes());
    return count;
}

void PortDiscovery::store(std::size_t index, std::span<const std::byte> records) {
    if (index >= kMostPorts) throw Errors::subscriptOutOfRange();
    const std::size_t offset = index * PortSpooler::kRecordSize;
    // A spooler that counts more records than it wrote is not followed out of the buffer.
    if (offset + PortSpooler::kRecordSize > records.size()) throw Errors::invalidCall();
    const auto record = records.subspan(offset, PortSpooler::kRecordSize);
    if (index >= arrPorts.size()) arrPorts.resize(index + 1);
    PortRecord& entry = arrPorts[index];
    entry.PortName = textAt(field(record, 0));
    entry.MonitorName = textAt(field(record, 1));
    entry.Description = textAt(field(record, 2));
    entry.PortType = field(record, 3);
}

}  // namespace Orvo
