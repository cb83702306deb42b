#include "Support/memory.h"

#include <cstdlib>
#include <limits>
#include <new>

#include <malloc.h>

namespace Orvo::Tests {
namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

struct Memory {
    std::size_t inUse = 0;
    std::size_t untilFailure = kNever;
    Failing failing = Failing::once;
    bool hasFailed = false;

    bool fails() {
        if (untilFailure == kNever || untilFailure-- != 0) return false;
        untilFailure = failing == Failing::once ? kNever : 0;
        return hasFailed = true;
    }
};

constinit Memory memory;

void* allocate(std::size_t size) {
    void* block = memory.fails() ? nullptr : std::malloc(size);
    memory.inUse += ::malloc_usable_size(block);
    return block;
}

void* allocateOrThrow(std::size_t size) {
    if (void* block = allocate(size)) return block;
    throw std::bad_alloc();
}

void release(void* block) {
    memory.inUse -= ::malloc_usable_size(block);
    std::free(block);
}

}  // namespace

std::size_t bytesInUse() { return memory.inUse; }

FailingMemory::FailingMemory(std::size_t others, Failing failing) {
    memory.failing = failing;
    memory.hasFailed = false;
    memory.untilFailure = others;
}

FailingMemory::~FailingMemory() { memory.untilFailure = kNever; }

bool FailingMemory::hasFailed() const { return memory.hasFailed; }

}  // namespace Orvo::Tests

// A sanitizer's own are replaced as well, all of them.
void* operator new(std::size_t size) { return Orvo::Tests::allocateOrThrow(size); }
void* operator new[](std::size_t size) { return Orvo::Tests::allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return Orvo::Tests::allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return Orvo::Tests::allocate(size);
}
void operator delete(void* block) noexcept { Orvo::Tests::release(block); }
void operator delete[](void* block) noexcept { Orvo::Tests::release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { Orvo::Tests::release(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { Orvo::Tests::release(block); }
