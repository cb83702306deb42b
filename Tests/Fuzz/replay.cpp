#include <cstdio>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "Fuzz/fuzz.h"
#include "Support/approved.h"

namespace {

constexpr int kMixtures = 300;
constexpr int kLines = 30;  // of each

/// Inputs of lines that are found anywhere, and so of another sense.
void attackWithMixturesOf(const std::vector<std::string>& lines) {
    std::minstd_rand random;
    std::uniform_int_distribution<std::size_t> any(0, lines.size() - 1);
    for (int i = 0; i < kMixtures; ++i) {
        std::string mixture;
        for (int line = 0; line < kLines; ++line) mixture += lines[any(random)] + '\n';
        Orvo::Fuzz::attack(mixture);
    }
}

}  // namespace

// What libFuzzer's main() does with files: each is an input.
int main(int argc, char** argv) {
    std::vector<std::string> lines;
    for (const char* const file : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
        std::fprintf(stderr, "%s\n", file);
        const std::string text = Orvo::Tests::textIn(file);
        Orvo::Fuzz::attack(text);
        Orvo::Fuzz::forLines(text, [&](std::string_view line) { lines.emplace_back(line); });
    }
    attackWithMixturesOf(lines);
}
