#include "Orvo/service/block_heap.h"

#include <limits>
#include <new>

namespace Orvo {
namespace {

// A gap after each block, so that an address just past its end lies in no other.
constexpr std::int64_t kGap = 16;
constexpr std::int64_t kFirst = 0x10000;
constexpr std::int64_t kLast = std::numeric_limits<Long>::max();

}  // namespace

Long BlockHeap::allocate(std::size_t bytes) try {
    const std::int64_t address = nextAddress();
    const std::int64_t room = kLast - kGap - address;
    if (room < 0 || bytes > static_cast<std::size_t>(room)) return 0;
    blocks_.emplace(address, std::vector<std::byte>(bytes));
    return static_cast<Long>(address);
} catch (const std::bad_alloc&) {
    return 0;
}

// Above the last block that is left, so that one which stays does not make the addresses run out.
std::int64_t BlockHeap::nextAddress() const {
    if (blocks_.empty()) return kFirst;
    const auto& [address, bytes] = *blocks_.rbegin();
    return address + (static_cast<std::int64_t>(bytes.size()) / kGap + 2) * kGap;
}

void BlockHeap::release(Long address) { blocks_.erase(address); }

std::span<std::byte> BlockHeap::bytesFrom(Long address) {
    auto after = blocks_.upper_bound(address);
    if (after == blocks_.begin()) return {};
    auto& [first, bytes] = *std::prev(after);
    const auto offset = static_cast<std::size_t>(address - first);
    return offset < bytes.size() ? std::span(bytes).subspan(offset) : std::span<std::byte>();
}

}  // namespace Orvo
