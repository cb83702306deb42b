#pragma once

#include <chrono>
#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Support/approved.h"
#include "Support/loopback_port.h"
#include "Support/temporary_directory.h"

namespace Orvo::Tests {

/// CUPS' print server on the loopback, with a configuration of its own, from its start until the
/// end of this.
class PrintServerProcess {
public:
    /// Where the server is installed; none where it is not.
    static std::optional<std::filesystem::path> program() {
        for (const char* path : {"/usr/sbin/cupsd", "/usr/local/sbin/cupsd"}) {
            if (std::filesystem::exists(path)) return path;
        }
        return std::nullopt;
    }

    /// Starts the server and waits until it lets connections in. `queues` is the text of a
    /// printers.conf, `access` are directives that hold for whoever connects.
    PrintServerProcess(const std::string& queues, const std::string& access)
        : process_(start(queues, access)), isRunning_(waitForConnection()) {}
    ~PrintServerProcess() {
        if (process_ <= 0) return;
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    PrintServerProcess(const PrintServerProcess&) = delete;
    PrintServerProcess& operator=(const PrintServerProcess&) = delete;

    /// Whether it did start, and what it had to say if not.
    [[nodiscard]] bool isRunning() const { return isRunning_; }
    [[nodiscard]] std::string log() const { return textIn(in_ + "error_log"); }
    [[nodiscard]] std::string port() const { return std::to_string(port_); }

private:
    [[nodiscard]] pid_t start(const std::string& queues, const std::string& access) const {
        directory_.add({
            "cache/",
            "spool/",
            "state/",
            "temporary/",
            "cupsd.conf = Listen 127.0.0.1:" + port() +
                "\nBrowsing No\nWebInterface No\n<Location />\n" + access + "\n</Location>\n",
            "cups-files.conf = ServerRoot " + in_ + "root\nCacheDir " + in_ +
                "cache\nRequestRoot " + in_ + "spool\nStateDir " + in_ + "state\nTempDir " + in_ +
                "temporary\nErrorLog " + in_ + "error_log\nAccessLog " + in_ +
                "access_log\nPageLog " + in_ + "page_log\n",
            "root/printers.conf = " + queues,
        });
        // A security module that knows the installed program would keep it to its usual places.
        const std::string copy = in_ + "cupsd";
        std::filesystem::copy_file(program().value(), copy);
        const std::string main = in_ + "cupsd.conf";
        const std::string files = in_ + "cups-files.conf";
        const pid_t process = ::fork();
        if (process != 0) return process;
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that is killed ends nothing else
        ::execl(copy.c_str(), copy.c_str(), "-f", "-c", main.c_str(), "-s", files.c_str(), nullptr);
        ::_exit(127);
    }

    [[nodiscard]] bool waitForConnection() const {
        for (int i = 0; i < 500; ++i) {
            if (letsConnect(port_)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return false;
    }

    TemporaryDirectory directory_;
    const std::string in_ = directory_.path().string() + '/';
    const int port_ = LoopbackPort().number();
    const pid_t process_;
    const bool isRunning_;
};

}  // namespace Orvo::Tests
