#pragma once

#include <cstddef>
#include <cstdint>

#include <gtest/gtest.h>

// The memory of a test program of one thread, whose `operator new` this replaces.
namespace Orvo::Tests {

/// Bytes that have been allocated and not given back.
std::size_t bytesInUse();

enum class Failing : std::uint8_t { once, fromThenOn };

/// While this exists, an allocation fails: the one after so many others, or all from there on.
class FailingMemory {
public:
    FailingMemory(std::size_t others, Failing failing);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Whether it came to that.
    [[nodiscard]] bool hasFailed() const;
};

/// Does `act` to a fresh subject until every allocation in it has failed: once, and with all that
/// come after it. `Subject::expectAfter` is told whether one failed; nothing of the subject stays.
template <class Subject, class Act>
void failEveryAllocation(const Act& act) {
    ASSERT_NO_FATAL_FAILURE(Subject().expectAfter(false));
    for (const Failing failing : {Failing::once, Failing::fromThenOn}) {
        bool hasFailed = true;
        for (std::size_t others = 0; hasFailed; ++others) {
            SCOPED_TRACE(others);
            const std::size_t before = bytesInUse();
            {
                Subject subject;
                {
                    const FailingMemory memory(others, failing);
                    subject.attempt(act);
                    hasFailed = memory.hasFailed();
                }
                ASSERT_NO_FATAL_FAILURE(subject.expectAfter(hasFailed));
            }
            ASSERT_EQ(bytesInUse(), before);
        }
    }
}

}  // namespace Orvo::Tests
