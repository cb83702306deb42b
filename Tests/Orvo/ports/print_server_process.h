#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <sys/types.h>

#include "Support/temporary_directory.h"

namespace Orvo::Tests {

/// A TCP port of the loopback, taken for as long as this is there. Connections are let in, and then
/// never answered, once it listens; before, they are refused.
class LoopbackPort {
public:
    LoopbackPort();
    ~LoopbackPort();
    LoopbackPort(const LoopbackPort&) = delete;
    LoopbackPort& operator=(const LoopbackPort&) = delete;

    void listen() const;
    [[nodiscard]] int number() const { return number_; }

private:
    int socket_;
    int number_ = 0;
};

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
