#include "Orvo/service/block_heap.h"

#include <limits>

namespace Orvo {
namespace {

// A gap after each block, so that an address just past its end lies in no other.
constexpr std::int64_t kGap = 16;
constexpr std::int64_t kFirst = 0x10000;
constexpr std::int64_t kLast = std::numeric_limits<Long>::max();

}  // namespace

Long BlockHeap::allocate(std::size_t bytes) {
    if (bytes > static_cast<std::size_t>(kLast - kFirst)) return 0;
    const auto size = static_cast<std::int64_t>(bytes);
    if (blocks_.empty()) next_ = kFirst;
    if (next_ + size + kGap > kLast) return 0;
    const std::int64_t address = next_;
    blocks_.emplace(address, std::vector<std::byte>(bytes));
    next_ += (size / kGap + 2) * kGap;
    return static_cast<Long>(address);
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
