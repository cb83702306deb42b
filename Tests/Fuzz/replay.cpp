#include <cstdio>
#include <span>

#include "Fuzz/fuzz.h"
#include "Support/approved.h"

// What libFuzzer's main() does with files: each is an input.
int main(int argc, char** argv) {
    for (const char* const file : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
        std::fprintf(stderr, "%s\n", file);
        Orvo::Fuzz::attack(Orvo::Tests::textIn(file));
    }
}
