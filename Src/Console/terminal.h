#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvo::Console {

/// Candidates for the word that is being typed, as `completions` gives them.
using Completer = std::vector<std::string> (*)(std::string_view before, std::string_view typed);

/// Asks a person at the terminal for lines, with editing, a history and completion where the
/// program was built with a library for that.
class Terminal {
public:
    explicit Terminal(Completer completer);

    /// None at the end of input. Ctrl+C gives up the line: it is empty then.
    std::optional<std::string> ask(const std::string& prompt);
};

}  // namespace Orvo::Console
