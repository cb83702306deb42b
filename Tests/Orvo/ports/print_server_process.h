#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <sys/types.h>

#include "Support/loopback_port.h"
#include "Support/temporary_directory.h"

namespace Orvo::Tests {

/// CUPS' print server on the loopback, with a configuration of its own, from its start until the
/// end of this.
class PrintServerProcess {
public:
    /// Where the server is installed; none where it is not.
    static std::optional<std::filesystem::path> program();

    /// Starts the server and waits until it lets connections in. `queues` is the text of a
    /// printers.conf, `access` are directives that hold for whoever connects.
    PrintServerProcess(const std::string& queues, const std::string& access);
    ~PrintServerProcess();
    PrintServerProcess(const PrintServerProcess&) = delete;
    PrintServerProcess& operator=(const PrintServerProcess&) = delete;

    /// Whether it did start, and what it had to say if not.
    [[nodiscard]] bool isRunning() const { return isRunning_; }
    [[nodiscard]] std::string log() const;
    [[nodiscard]] std::string port() const { return std::to_string(port_); }

private:
    void configure(const std::string& queues, const std::string& access) const;
    [[nodiscard]] pid_t start(const std::string& queues, const std::string& access) const;
    [[nodiscard]] bool waitForConnection() const;

    TemporaryDirectory directory_;
    int port_ = LoopbackPort().number();
    pid_t process_;
    bool isRunning_;
};

}  // namespace Orvo::Tests
