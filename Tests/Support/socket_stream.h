#pragma once

#include <array>
#include <cerrno>
#include <memory>
#include <stdexcept>
#include <utility>

#include <sys/socket.h>

#include "Manager/Link/byte_stream.h"
#include "Script/file_descriptor.h"

namespace Orvo::Tests {

/// The near end of a link whose far end a test holds.
class SocketStream final : public Manager::ByteStream {
public:
    static std::pair<std::unique_ptr<SocketStream>, Script::FileDescriptor> makePair() {
        std::array<int, 2> ends{};
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends.data()) != 0) {
            throw std::runtime_error("no sockets");
        }
        Script::FileDescriptor far(ends[1]);
        return {std::make_unique<SocketStream>(Script::FileDescriptor(ends[0])), std::move(far)};
    }

    explicit SocketStream(Script::FileDescriptor end) : end_(std::move(end)) {}

    std::optional<std::size_t> read(std::span<char> bytes) override {
        return counted(::recv(end_.get(), bytes.data(), bytes.size(), 0), 1);
    }
    std::optional<std::size_t> write(std::string_view bytes) override {
        return counted(::send(end_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL), 0);
    }

private:
    static std::optional<std::size_t> counted(ssize_t count, ssize_t least) {
        if (count >= least) return std::size_t(count);
        return count < 0 && errno == EAGAIN ? std::optional<std::size_t>(0) : std::nullopt;
    }

    const Script::FileDescriptor end_;
};

}  // namespace Orvo::Tests
