#include <array>
#include <clocale>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <editline/readline.h>
#include <termios.h>
#include <unistd.h>

#include "Console/terminal.h"

namespace Orvo::Console {
namespace {

// The library calls back without a context.
Completer completerInUse = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

constexpr int kControlC = 3;
bool isGivenUp = false;  // NOLINT(*-avoid-non-const-global-variables)

// As long as this is, Ctrl+C interrupts nobody: the library writes the prompt before it takes the
// terminal over.
class Uninterrupted {
public:
    Uninterrupted() : isTerminal_(::tcgetattr(STDIN_FILENO, &before_) == 0) {
        termios settings = before_;
        settings.c_cc[VINTR] = _POSIX_VDISABLE;
        apply(settings);
    }
    ~Uninterrupted() { apply(before_); }
    Uninterrupted(const Uninterrupted&) = delete;
    Uninterrupted& operator=(const Uninterrupted&) = delete;

private:
    void apply(const termios& settings) const {
        if (isTerminal_) ::tcsetattr(STDIN_FILENO, TCSANOW, &settings);
    }

    termios before_{};
    bool isTerminal_;
};

// The library forgets it with each line.
int makeControlCAKey() { return rl_parse_and_bind("setty -d -intr"); }

int giveUp(int /*count*/, int /*key*/) {
    isGivenUp = true;
    rl_done = 1;
    return 0;
}

struct Free {
    void operator()(char* text) const { std::free(text); }  // NOLINT(*-no-malloc)
};

// Gives out the candidates one by one; `state` is 0 for the first.
char* nextCandidate(const char* typed, int state) {
    static std::vector<std::string> candidates;
    static std::size_t next = 0;
    if (state == 0) {
        const std::string_view line(rl_line_buffer);
        const auto start = static_cast<std::size_t>(rl_point) - std::strlen(typed);
        candidates = completerInUse(line.substr(0, start), typed);
        next = 0;
    }
    return next < candidates.size() ? strdup(candidates[next++].c_str()) : nullptr;
}

char** complete(const char* typed, int /*start*/, int /*end*/) {
    // Without candidates of ours the library would offer names of files.
    rl_attempted_completion_over = 1;
    return rl_completion_matches(typed, nextCandidate);
}

}  // namespace

Terminal::Terminal(Completer completer) {
    static std::array blanks{' ', '\t', '\0'};
    completerInUse = completer;
    // The library drops what the locale can't tell, which the C locale is all but ASCII.
    if (std::setlocale(LC_CTYPE, "") == nullptr || MB_CUR_MAX == 1) {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
    rl_basic_word_break_characters = blanks.data();
    rl_attempted_completion_function = complete;
    using_history();
    rl_initialize();
    rl_pre_input_hook = makeControlCAKey;
    rl_add_defun("give-up-line", giveUp, kControlC);
}

std::optional<std::string> Terminal::ask(const std::string& prompt) {
    isGivenUp = false;
    const Uninterrupted uninterrupted;
    const std::unique_ptr<char, Free> line(readline(prompt.c_str()));
    if (isGivenUp) {
        std::puts("^C");
        return "";
    }
    if (!line) return std::nullopt;
    if (*line != '\0') add_history(line.get());
    return line.get();
}

}  // namespace Orvo::Console
