#include "Orvo/ports/print_server.h"

#include <array>
#include <future>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "Orvo/ports/cups_library.h"
#include "Orvo/ports/queue_listing.h"

namespace Orvo::Runtime {
namespace {

using Milliseconds = std::chrono::milliseconds;

struct Closing {
    void operator()(http_t* connection) const { cups().httpClose(connection); }
    void operator()(ipp_t* message) const { cups().ippDelete(message); }
};
using Connection = std::unique_ptr<http_t, Closing>;
using Request = std::unique_ptr<ipp_t, Closing>;

// A conversation on a thread of its own, and how whoever waits for it ends it. The library counts
// its time limits anew for each step, and a server that always has something to say never meets
// one.
class Inquiry {
public:
    std::optional<std::string> ask(const std::string& server, Milliseconds limit);
    void end();

private:
    class Open;

    std::mutex mutex_;
    int socket_ = -1;
    bool isOver_ = false;
};

// For as long as the connection can be ended from outside: by a number of its own for the socket,
// as the library may close its number, which is another's then.
class Inquiry::Open {
public:
    Open(Inquiry& inquiry, http_t* connection) : inquiry_(inquiry) {
        const std::lock_guard lock(inquiry_.mutex_);
        if (inquiry_.isOver_) return;
        inquiry_.socket_ = ::fcntl(cups().httpGetFd(connection), F_DUPFD_CLOEXEC, 0);
        isInTime = inquiry_.socket_ >= 0;
    }
    ~Open() {
        const std::lock_guard lock(inquiry_.mutex_);
        if (isInTime) ::close(std::exchange(inquiry_.socket_, -1));
    }
    Open(const Open&) = delete;
    Open& operator=(const Open&) = delete;

    bool isInTime = false;  // NOLINT(*-non-private-member-variables-in-classes)

private:
    Inquiry& inquiry_;
};

void Inquiry::end() {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
    if (socket_ >= 0) ::shutdown(socket_, SHUT_RDWR);
}

bool mustEncrypt() {
    const auto encryption = cups().cupsEncryption();
    return encryption == HTTP_ENCRYPTION_REQUIRED || encryption == HTTP_ENCRYPTION_ALWAYS;
}

// Encryption is asked for by a request, which comes once the connection can be ended. On the port
// where the library begins with it, nobody could end that.
Connection connectTo(const std::string& host, int port, Milliseconds limit) {
    constexpr int kBeginsEncrypted = 443;
    if (port == kBeginsEncrypted) return {};
    const auto encryption = mustEncrypt() ? HTTP_ENCRYPTION_IF_REQUESTED : cups().cupsEncryption();
    return Connection(cups().httpConnect2(host.c_str(), port, nullptr, AF_UNSPEC, encryption, 1,
                                          static_cast<int>(limit.count()), nullptr));
}

Connection connectTo(const std::string& server, Milliseconds limit) {
    if (server.empty()) return connectTo(cups().cupsServer(), cups().ippPort(), limit);
    const std::string uri = "ipp://" + server + "/";
    std::array<char, HTTP_MAX_URI> scheme{};
    std::array<char, HTTP_MAX_URI> user{};
    std::array<char, HTTP_MAX_URI> host{};
    std::array<char, HTTP_MAX_URI> resource{};
    constexpr int kSize = HTTP_MAX_URI;
    int port = 0;
    const auto status =
        cups().httpSeparateURI(HTTP_URI_CODING_ALL, uri.c_str(), scheme.data(), kSize, user.data(),
                               kSize, host.data(), kSize, &port, resource.data(), kSize);
    return status == HTTP_URI_STATUS_OK ? connectTo(host.data(), port, limit) : Connection();
}

Request queueRequest() {
    static constexpr std::array kWanted{"printer-name", "device-uri", "printer-info"};
    Request request(cups().ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    cups().ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                         static_cast<int>(kWanted.size()), nullptr, kWanted.data());
    return request;
}

// Step by step: all at once, the library connects anew as it sees fit, to where it isn't ended.
bool send(http_t* connection, ipp_t* request) {
    if (mustEncrypt() && cups().httpEncryption(connection, HTTP_ENCRYPTION_REQUIRED) != 0)
        return false;
    cups().httpClearFields(connection);
    cups().httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    cups().httpSetLength(connection, cups().ippLength(request));
    return cups().httpPost(connection, "/") == 0 &&
           cups().ippWrite(connection, request) == IPP_STATE_DATA;
}

// A server that wants a password, or to be asked another way or elsewhere, is one that refuses.
bool isAnswered(http_t* connection) {
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE) status = cups().httpUpdate(connection);
    return status == HTTP_STATUS_OK;
}

std::optional<std::string> body(http_t* connection) {
    std::string bytes;
    std::array<char, 4096> piece{};
    ssize_t count = 0;
    while ((count = cups().httpRead2(connection, piece.data(), piece.size())) > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(count));
        if (bytes.size() > kLongestQueueAnswer) return std::nullopt;
    }
    return count == 0 ? std::optional(bytes) : std::nullopt;
}

std::optional<std::string> Inquiry::ask(const std::string& server, Milliseconds limit) {
    if (!cups().isHere) return std::nullopt;
    const Connection connection = connectTo(server, limit);
    if (!connection) return std::nullopt;
    const Open open(*this, connection.get());
    const bool isAsked = open.isInTime && send(connection.get(), queueRequest().get());
    if (!isAsked || !isAnswered(connection.get())) return std::nullopt;
    return body(connection.get());
}

}  // namespace

// The library's look-up of a host's name knows no limit. A thread is its own world to the library
// besides, so that a host's own use of it is not touched.
std::optional<Ports> printQueues(const std::string& server, Milliseconds limit) {
    const auto inquiry = std::make_shared<Inquiry>();
    std::packaged_task<std::optional<std::string>()> task(
        [inquiry, server, limit] { return inquiry->ask(server, limit); });
    auto answer = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        return std::nullopt;
    }
    if (answer.wait_for(limit) != std::future_status::ready) {
        inquiry->end();
        return std::nullopt;
    }
    const auto bytes = answer.get();
    return bytes ? queuesIn(*bytes) : std::nullopt;
}

}  // namespace Orvo::Runtime
