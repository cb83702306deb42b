#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

#include "Orvo/values/types.h"

// What port discovery asks of the machine.
namespace Orvo {

/// Memory with 32-bit addresses. An address is never 0.
class ProcessHeap {
public:
    virtual ~ProcessHeap() = default;
    /// A block of at least this many bytes, or 0 when there is no room; its bytes are undefined.
    virtual Long allocate(std::size_t bytes) = 0;
    /// Ends a block that `allocate` gave out.
    virtual void release(Long address) = 0;
    /// The bytes from an address to the end of the block that it lies in; empty when it lies in
    /// none. Valid until the block is released.
    virtual std::span<std::byte> bytesFrom(Long address) = 0;
};

/// The print spooler's enumeration of ports.
class PortSpooler {
public:
    /// Level-2 records, one after the other from the start of the buffer, then the texts that they
    /// point to. Fields are 32 bits each, in the machine's byte order: the addresses of the port's
    /// name, its monitor's name and its description (NUL-terminated, ANSI), the type flags, and one
    /// that is reserved.
    static constexpr Long kLevel = 2;
    static constexpr std::size_t kRecordSize = 20;

    /// Type flags.
    enum PortType : Long { write = 1, read = 2, redirected = 4, netAttached = 8 };

    virtual ~PortSpooler() = default;
    /// Lists the ports of a server (ANSI; "" is this machine) into `buffer`, which stands at
    /// `address`. Sets `needed` to the number of bytes it takes and `count` to the number of
    /// records written. False when it fails, for one because the buffer is too small.
    virtual bool enumPorts(const std::string& server, Long level, Long address,
                           std::span<std::byte> buffer, Long& needed, Long& count) = 0;
};

/// What a panel is given of the machine. Without a spooler there are no ports; without a heap the
/// panel makes one of its own.
struct Platform {
    std::shared_ptr<PortSpooler> spooler{};
    std::shared_ptr<ProcessHeap> heap{};
};

}  // namespace Orvo
