#include "Script/program.h"

#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "Script/text_of.h"

namespace Orvo::Script {

namespace {

// By something that can't be read, or written, either.
void fillPlaceOf(int stream) {
    if (::fcntl(stream, F_GETFD) >= 0) return;
    static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

}  // namespace

void surviveFailedWrites() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) fillPlaceOf(stream);
    for (const int number : {SIGPIPE, SIGXFSZ}) std::signal(number, SIG_IGN);
}

void complain(std::string_view text) { std::fprintf(stderr, "%s\n", onOneLine(text).c_str()); }

}  // namespace Orvo::Script
