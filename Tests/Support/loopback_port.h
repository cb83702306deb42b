#pragma once

#include <chrono>
#include <string>
#include <thread>

namespace Orvo::Tests {

/// Whether somebody listens at a port of the loopback.
bool letsConnect(int port);

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
    [[nodiscard]] std::string address() const { return "127.0.0.1:" + std::to_string(number_); }

    /// The next connection, or a negative number when there is none after so long.
    [[nodiscard]] int accept(std::chrono::milliseconds patience) const;

private:
    int socket_;
    int number_ = 0;
};

/// What a server says to whoever connects first: one text, then another without end.
struct Speech {
    std::string beginning;
    std::string refrain;
    std::chrono::milliseconds pause{0};  ///< before each refrain
};

/// A server that speaks, whatever it is asked, until it is hung up on or loses patience.
class SpeakingServer {
public:
    explicit SpeakingServer(Speech speech);
    ~SpeakingServer();
    SpeakingServer(const SpeakingServer&) = delete;
    SpeakingServer& operator=(const SpeakingServer&) = delete;

    [[nodiscard]] std::string address() const { return port_.address(); }
    /// Waits for that.
    bool isHungUpOn();

private:
    void serve();
    bool hearsTheEnd(int client) const;

    const Speech speech_;
    LoopbackPort port_;
    bool isHungUpOn_ = false;
    std::thread thread_;
};

}  // namespace Orvo::Tests
