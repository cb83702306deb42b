#include <csignal>
#include <cstdio>
#include <iostream>

#include "Console/terminal.h"

namespace Orvo::Console {
namespace {

volatile std::sig_atomic_t isGivenUp = 0;  // NOLINT(*-avoid-non-const-global-variables)

// As long as this is, Ctrl+C interrupts who reads from the terminal, and the terminal drops what
// has been typed.
class Interruptible {
public:
    Interruptible() {
        isGivenUp = 0;
        struct sigaction action {};
        action.sa_handler = [](int) { isGivenUp = 1; };
        ::sigaction(SIGINT, &action, &before_);
    }
    ~Interruptible() { ::sigaction(SIGINT, &before_, nullptr); }
    Interruptible(const Interruptible&) = delete;
    Interruptible& operator=(const Interruptible&) = delete;

private:
    struct sigaction before_ {};
};

}  // namespace

Terminal::Terminal(Completer /*completer*/) {}

std::optional<std::string> Terminal::ask(const std::string& prompt) {
    const Interruptible interruptible;
    std::cout << prompt << std::flush;
    std::string line;
    if (std::getline(std::cin, line)) return line;
    if (isGivenUp == 0) return std::nullopt;
    std::cin.clear();
    std::clearerr(stdin);
    std::cout << '\n';
    return "";
}

}  // namespace Orvo::Console
