#include "Manager/Link/link_port.h"

#include <cerrno>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <termios.h>
#include <unistd.h>

namespace Orvo::Manager {
namespace {

[[noreturn]] void fail(int error, const LinkAddress& address) {
    throw std::system_error(error, std::generic_category(), address.path);
}

int checked(int result, const LinkAddress& address) {
    if (result < 0) fail(errno, address);
    return result;
}

int openFile(const LinkAddress& address, int mode) {
    return checked(::open(address.path.c_str(), mode | O_NONBLOCK | O_NOCTTY | O_CLOEXEC), address);
}

int connectTo(const LinkAddress& address) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    if (address.path.size() >= sizeof name.sun_path) fail(ENAMETOOLONG, address);
    std::memcpy(name.sun_path, address.path.c_str(), address.path.size());
    const int descriptor =
        checked(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0), address);
    const auto* generic = reinterpret_cast<const sockaddr*>(&name);  // the interface's own way
    if (::connect(descriptor, generic, sizeof name) == 0) return descriptor;
    const int error = errno;
    ::close(descriptor);
    fail(error, address);
}

bool isPassing(int error) { return error == EAGAIN || error == EWOULDBLOCK || error == EINTR; }

}  // namespace

LinkPort::LinkPort(const LinkAddress& address) {
    struct stat file {};
    checked(::stat(address.path.c_str(), &file), address);
    if (S_ISSOCK(file.st_mode)) {
        kind_ = Kind::socket;
        descriptor_ = connectTo(address);
    } else if (S_ISFIFO(file.st_mode)) {
        kind_ = Kind::pipe;
        descriptor_ = openFile(address, O_RDONLY);
    } else if (S_ISCHR(file.st_mode)) {
        descriptor_ = openFile(address, O_RDWR);
        setUpTerminal(address);
    } else {
        fail(ENOTTY, address);
    }
}

LinkPort::~LinkPort() { ::close(descriptor_); }

// The destructor of what isn't made doesn't run.
void LinkPort::setUpTerminal(const LinkAddress& address) const {
    termios settings{};
    bool isDone = ::tcgetattr(descriptor_, &settings) == 0;
    ::cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    if (address.speed) ::cfsetspeed(&settings, speedConstant(*address.speed).value());
    isDone = isDone && ::tcsetattr(descriptor_, TCSANOW, &settings) == 0;
    if (isDone) return;
    const int error = errno;
    ::close(descriptor_);
    fail(error, address);
}

std::optional<std::size_t> LinkPort::read(std::span<char> bytes) {
    const ssize_t count = ::read(descriptor_, bytes.data(), bytes.size());
    if (count > 0) {
        hasHeard_ = true;
        return static_cast<std::size_t>(count);
    }
    if (count < 0 && isPassing(errno)) return 0;
    if (count == 0 && kind_ == Kind::pipe && !hasHeard_) return 0;
    return std::nullopt;
}

std::optional<std::size_t> LinkPort::write(std::string_view bytes) {
    if (kind_ == Kind::pipe) return bytes.size();
    const ssize_t count = kind_ == Kind::socket
                              ? ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL)
                              : ::write(descriptor_, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (isPassing(errno)) return 0;
    return std::nullopt;
}

}  // namespace Orvo::Manager
