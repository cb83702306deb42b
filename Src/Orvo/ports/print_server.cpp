#include "Orvo/ports/print_server.h"

#include <algorithm>
#include <array>
#include <future>
#include <memory>
#include <string_view>
#include <system_error>
#include <thread>

#include <cups/cups.h>

#include "Orvo/values/text.h"

namespace Orvo::Runtime {
namespace {

using Milliseconds = std::chrono::milliseconds;

struct Closing {
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Connection = std::unique_ptr<http_t, Closing>;
using Response = std::unique_ptr<ipp_t, Closing>;

constexpr auto kNetworkBackEnds = std::to_array<std::string_view>(
    {"dnssd", "http", "https", "ipp", "ipps", "lpd", "smb", "socket"});

Connection connectTo(const std::string& host, int port, Milliseconds limit) {
    const auto milliseconds = static_cast<int>(limit.count());
    Connection connection(httpConnect2(host.c_str(), port, nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                       milliseconds, nullptr));
    if (connection) httpSetTimeout(connection.get(), milliseconds / 1000.0, nullptr, nullptr);
    return connection;
}

Connection connectTo(const std::string& server, Milliseconds limit) {
    if (server.empty()) return connectTo(cupsServer(), ippPort(), limit);
    const std::string uri = "ipp://" + server + "/";
    std::array<char, HTTP_MAX_URI> scheme{};
    std::array<char, HTTP_MAX_URI> user{};
    std::array<char, HTTP_MAX_URI> host{};
    std::array<char, HTTP_MAX_URI> resource{};
    constexpr int kSize = HTTP_MAX_URI;
    int port = 0;
    const auto status =
        httpSeparateURI(HTTP_URI_CODING_ALL, uri.c_str(), scheme.data(), kSize, user.data(), kSize,
                        host.data(), kSize, &port, resource.data(), kSize);
    return status == HTTP_URI_STATUS_OK ? connectTo(host.data(), port, limit) : Connection();
}

Response askForQueues(http_t* connection) {
    static constexpr std::array kWanted{"printer-name", "device-uri", "printer-info"};
    ipp_t* request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(kWanted.size()), nullptr, kWanted.data());
    return Response(cupsDoRequest(connection, request, "/"));
}

void enter(PortRecord& port, std::string_view attribute, std::string_view value) {
    if (attribute == "printer-name") {
        port.PortName = fromUtf8(value);
    } else if (attribute == "printer-info") {
        port.Description = fromUtf8(value);
    } else if (attribute == "device-uri") {
        const std::string_view backEnd = value.substr(0, value.find(':'));
        port.MonitorName = fromUtf8(backEnd);
        if (std::ranges::find(kNetworkBackEnds, backEnd) != kNetworkBackEnds.end()) {
            port.PortType |= PortSpooler::netAttached;
        }
    }
}

// Each printer is a group of attributes, with an attribute of no group between two of them.
Ports portsIn(ipp_t* response) {
    Ports ports;
    bool isWithin = false;
    for (auto* attribute = ippFirstAttribute(response); attribute != nullptr;
         attribute = ippNextAttribute(response)) {
        const bool wasWithin = isWithin;
        isWithin = ippGetGroupTag(attribute) == IPP_TAG_PRINTER;
        if (!isWithin) continue;
        if (!wasWithin) ports.push_back({{}, {}, {}, PortSpooler::write});
        const char* name = ippGetName(attribute);
        const char* value = ippGetString(attribute, 0, nullptr);
        if (name != nullptr && value != nullptr) enter(ports.back(), name, value);
    }
    return ports;
}

std::optional<Ports> lookUp(const std::string& server, Milliseconds limit) {
    // A server that wants a password is one that refuses: the library would ask on the terminal.
    cupsSetPasswordCB2([](const char*, http_t*, const char*, const char*,
                          void*) -> const char* { return nullptr; },
                       nullptr);
    const Connection connection = connectTo(server, limit);
    if (!connection) return std::nullopt;
    const Response response = askForQueues(connection.get());
    if (!response) return std::nullopt;
    const ipp_status_t status = ippGetStatusCode(response.get());
    if (status == IPP_STATUS_ERROR_NOT_FOUND) return Ports();  // it has no queues
    if (status >= IPP_STATUS_REDIRECTION_OTHER_SITE) return std::nullopt;
    return portsIn(response.get());
}

}  // namespace

// The limits of the library count anew for each step, and the look-up of a host's name knows none.
// A thread is its own world to the library besides, so that a host's own use of it is not touched.
std::optional<Ports> printQueues(const std::string& server, Milliseconds limit) {
    std::packaged_task<std::optional<Ports>()> task(
        [server, limit] { return lookUp(server, limit); });
    auto answer = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        return std::nullopt;
    }
    if (answer.wait_for(limit) != std::future_status::ready) return std::nullopt;
    return answer.get();
}

}  // namespace Orvo::Runtime
