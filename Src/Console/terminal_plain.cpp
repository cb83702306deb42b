#include <iostream>

#include "Console/terminal.h"

namespace Orvo::Console {

Terminal::Terminal(Completer /*completer*/) {}

std::optional<std::string> Terminal::ask(const std::string& prompt) {
    std::cout << prompt << std::flush;
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    return line;
}

}  // namespace Orvo::Console
