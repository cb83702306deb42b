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

using Script::FileDescriptor;

[[noreturn]] void fail(int error, const LinkAddress& address) {
    throw std::system_error(error, std::generic_category(), address.path);
}

int checked(int result, const LinkAddress& address) {
    if (result < 0) fail(errno, address);
    return result;
}

// What has come into the place of what was looked at is not what was meant.
FileDescriptor openFile(const LinkAddress& address, const struct stat& meant, int mode) {
    FileDescriptor file(
        checked(::open(address.path.c_str(), mode | O_NONBLOCK | O_NOCTTY | O_CLOEXEC), address));
    struct stat found {};
    checked(::fstat(file.get(), &found), address);
    if (found.st_mode != meant.st_mode || found.st_ino != meant.st_ino) fail(ENOTTY, address);
    return file;
}

FileDescriptor connectTo(const LinkAddress& address) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    if (address.path.size() >= sizeof name.sun_path) fail(ENAMETOOLONG, address);
    std::memcpy(name.sun_path, address.path.c_str(), address.path.size());
    FileDescriptor socket(
        checked(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0), address));
    const auto* generic = reinterpret_cast<const sockaddr*>(&name);  // the interface's own way
    checked(::connect(socket.get(), generic, sizeof name), address);
    return socket;
}

void setUpTerminal(int terminal, const LinkAddress& address) {
    termios settings{};
    checked(::tcgetattr(terminal, &settings), address);
    ::cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    if (address.speed) ::cfsetspeed(&settings, speedConstant(*address.speed).value());
    checked(::tcsetattr(terminal, TCSANOW, &settings), address);
}

bool isPassing(int error) { return error == EAGAIN || error == EWOULDBLOCK || error == EINTR; }

}  // namespace

LinkPort::LinkPort(const LinkAddress& address) {
    struct stat file {};
    checked(::stat(address.path.c_str(), &file), address);
    if (S_ISSOCK(file.st_mode)) {
        kind_ = Kind::socket;
        file_ = connectTo(address);
    } else if (S_ISFIFO(file.st_mode)) {
        kind_ = Kind::pipe;
        file_ = openFile(address, file, O_RDONLY);
    } else if (S_ISCHR(file.st_mode)) {
        file_ = openFile(address, file, O_RDWR);
        setUpTerminal(file_.get(), address);
    } else {
        fail(ENOTTY, address);
    }
}

// To close a serial device may wait for what it has not sent.
LinkPort::~LinkPort() {
    if (kind_ == Kind::terminal) ::tcflush(file_.get(), TCOFLUSH);
}

std::optional<std::size_t> LinkPort::read(std::span<char> bytes) {
    const ssize_t count = ::read(file_.get(), bytes.data(), bytes.size());
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
                              ? ::send(file_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL)
                              : ::write(file_.get(), bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (isPassing(errno)) return 0;
    return std::nullopt;
}

}  // namespace Orvo::Manager
