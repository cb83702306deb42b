#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "Orvo/service/platform.h"

namespace Orvo {

/// A heap on ordinary memory that gives out addresses of its own.
class BlockHeap final : public ProcessHeap {
public:
    Long allocate(std::size_t bytes) override;
    void release(Long address) override;
    std::span<std::byte> bytesFrom(Long address) override;

    [[nodiscard]] std::size_t blockCount() const { return blocks_.size(); }

private:
    [[nodiscard]] std::int64_t nextAddress() const;

    std::map<std::int64_t, std::vector<std::byte>> blocks_;  // by first address
};

}  // namespace Orvo
