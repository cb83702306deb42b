#include "Orvo/ports/print_server_process.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvo::Tests {
namespace {

using namespace std::chrono_literals;

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int newSocket() { return socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }

bool letsConnect(int port) {
    const int client = newSocket();
    const sockaddr_in address = loopback(port);
    const int result = connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    close(client);
    return result == 0;
}

// True as soon as the condition holds, false if it does not in ten seconds.
template <class Condition>
bool waitUntil(Condition condition) {
    for (int i = 0; i < 500; ++i) {
        if (condition()) return true;
        std::this_thread::sleep_for(20ms);
    }
    return false;
}

// Leaves the process to be waited for, so that nobody else gets its number.
bool hasEnded(pid_t process) {
    siginfo_t info{};
    const auto id = static_cast<id_t>(process);
    return waitid(P_PID, id, &info, WEXITED | WNOHANG | WNOWAIT) != 0 || info.si_pid != 0;
}

}  // namespace

std::optional<std::filesystem::path> PrintServerProcess::program() {
    for (const char* path : {"/usr/sbin/cupsd", "/usr/local/sbin/cupsd"}) {
        if (std::filesystem::exists(path)) return path;
    }
    return std::nullopt;
}

PrintServerProcess::PrintServerProcess(const std::string& queues, const std::string& access)
    : process_(start(queues, access)), isRunning_(waitForConnection()) {}

PrintServerProcess::~PrintServerProcess() {
    if (process_ <= 0) return;
    kill(process_, SIGTERM);
    if (!waitUntil([this] { return hasEnded(process_); })) kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

std::string PrintServerProcess::log() const {
    std::ifstream file(directory_.path() / "error_log");
    return {std::istreambuf_iterator<char>(file), {}};
}

void PrintServerProcess::configure(const std::string& queues, const std::string& access) const {
    const std::string in = directory_.path().string() + '/';
    directory_.add({
        "cache/",
        "spool/",
        "state/",
        "temporary/",
        "cupsd.conf = Listen 127.0.0.1:" + port() +
            "\nBrowsing No\nWebInterface No\n<Location />\n" + access + "\n</Location>\n",
        "cups-files.conf = ServerRoot " + in + "root\nCacheDir " + in + "cache\nRequestRoot " + in +
            "spool\nStateDir " + in + "state\nTempDir " + in + "temporary\nErrorLog " + in +
            "error_log\nAccessLog " + in + "access_log\nPageLog " + in + "page_log\n",
        "root/printers.conf = " + queues,
    });
    // A security module that knows the installed program would keep it to its usual directories.
    std::filesystem::copy_file(program().value(), directory_.path() / "cupsd");
}

pid_t PrintServerProcess::start(const std::string& queues, const std::string& access) const {
    configure(queues, access);
    const std::string in = directory_.path().string() + '/';
    const std::string copy = in + "cupsd";
    const std::string main = in + "cupsd.conf";
    const std::string files = in + "cups-files.conf";
    const pid_t process = fork();
    if (process != 0) return process;
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // when the test is killed, there is nobody else to end it
    execl(copy.c_str(), copy.c_str(), "-f", "-c", main.c_str(), "-s", files.c_str(), nullptr);
    _exit(127);
}

bool PrintServerProcess::waitForConnection() const {
    bool isConnected = false;
    waitUntil([&] {
        isConnected = letsConnect(port_);
        return isConnected || hasEnded(process_);
    });
    return isConnected;
}

}  // namespace Orvo::Tests
