#include "Fuzz/fuzz.h"

#include <cstdio>
#include <cstdlib>

namespace Orvo::Fuzz {
namespace {

const Target& chosenTarget() {
    const char* const name = std::getenv("ORVO_FUZZ");
    for (const Target& target : kTargets) {
        if (name != nullptr && target.name == name) return target;
    }
    std::fprintf(stderr, "ORVO_FUZZ is none of:\n");
    for (const Target& target : kTargets) std::fprintf(stderr, "%s\n", target.name.data());
    std::exit(2);
}

void print(std::string_view line) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

}  // namespace

void attack(std::string_view input) {
    static const Target& kTarget = chosenTarget();
    kTarget.attack(input);
}

void expect(bool holds, std::string_view complaint, std::string_view evidence) {
    if (holds) return;
    print(evidence);
    print(complaint);
    std::abort();
}

}  // namespace Orvo::Fuzz

// The name is libFuzzer's. NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Orvo::Fuzz::attack({reinterpret_cast<const char*>(data), size});
    return 0;
}
