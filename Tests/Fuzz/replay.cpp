#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

#include "Support/approved.h"

// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// What libFuzzer's main() does with files: each is an input.
int main(int argc, char** argv) {
    for (const char* const file : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
        std::fprintf(stderr, "%s\n", file);
        const std::string input = Orvo::Tests::textIn(file);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
}
