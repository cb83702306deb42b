#include "Support/loopback_port.h"

#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Orvo::Tests {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 20s;

int newSocket() { return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

short eventOf(int socket, int events, std::chrono::milliseconds patience) {
    pollfd file{socket, static_cast<short>(events), 0};
    return ::poll(&file, 1, static_cast<int>(patience.count())) > 0 ? file.revents : short{0};
}

bool canSay(int client, std::string_view text) {
    return ::send(client, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT) >= 0 ||
           errno == EAGAIN;
}

}  // namespace

bool letsConnect(int port) {
    sockaddr_in address = loopback(port);
    const int client = newSocket();
    const int result = ::connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::close(client);
    return result == 0;
}

LoopbackPort::LoopbackPort() : socket_(newSocket()) {
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (::bind(socket_, generic, size) == 0 && ::getsockname(socket_, generic, &size) == 0) {
        number_ = ntohs(address.sin_port);
    }
}

LoopbackPort::~LoopbackPort() { ::close(socket_); }

void LoopbackPort::listen() const { ::listen(socket_, 8); }

int LoopbackPort::accept(std::chrono::milliseconds patience) const {
    return eventOf(socket_, POLLIN, patience) != 0 ? ::accept(socket_, nullptr, nullptr) : -1;
}

SpeakingServer::SpeakingServer(Speech speech) : speech_(std::move(speech)) {
    port_.listen();
    thread_ = std::thread([this] { serve(); });
}

SpeakingServer::~SpeakingServer() { isHungUpOn(); }

bool SpeakingServer::isHungUpOn() {
    if (thread_.joinable()) thread_.join();
    return isHungUpOn_;
}

void SpeakingServer::serve() {
    const int client = port_.accept(kPatience);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    isHungUpOn_ = client < 0 || !canSay(client, speech_.beginning);
    while (!isHungUpOn_ && std::chrono::steady_clock::now() < end) {
        isHungUpOn_ = hearsTheEnd(client);
    }
    ::close(client);
}

bool SpeakingServer::hearsTheEnd(int client) const {
    std::array<char, 4096> heard{};
    const int events = speech_.refrain.empty() ? POLLIN : POLLIN | POLLOUT;
    const short event = eventOf(client, events, 100ms);
    if ((event & ~POLLOUT) != 0) return ::recv(client, heard.data(), heard.size(), 0) <= 0;
    if ((event & POLLOUT) == 0) return false;
    std::this_thread::sleep_for(speech_.pause);
    return !canSay(client, speech_.refrain);
}

}  // namespace Orvo::Tests
