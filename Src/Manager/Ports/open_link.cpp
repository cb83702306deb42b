#include "Manager/Ports/open_link.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <termios.h>

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSerialPort>

#include "Manager/Link/pipe_stream.h"
#include "Script/file_descriptor.h"

namespace Orvo::Manager {
namespace {

// In each direction; more waits on this side or on the other.
constexpr qint64 kMostBuffered = 65536;  // bytes

[[noreturn]] void fail(int error, const LinkAddress& address) {
    throw std::system_error(error, std::generic_category(), address.path);
}

void check(int result, const LinkAddress& address) {
    if (result < 0) fail(errno, address);
}

// By its own name, which whoever else opens it locks too.
QString nameOf(const LinkAddress& address) {
    return QFileInfo(QFile::decodeName(address.path.c_str())).canonicalFilePath();
}

bool isGone(const QLocalSocket& socket) { return socket.state() != QLocalSocket::ConnectedState; }
bool isGone(const QSerialPort& port) { return port.error() != QSerialPort::NoError; }

// To close a serial device may wait for what it has not sent.
void abandon(QSerialPort& port) {
    if (port.isOpen()) port.clear(QSerialPort::Output);
}
void abandon(QLocalSocket& socket) { socket.abort(); }

template <class Device>
class DeviceStream final : public ByteStream {
public:
    DeviceStream() { device_.setReadBufferSize(kMostBuffered); }
    ~DeviceStream() override { abandon(device_); }

    [[nodiscard]] Device& device() { return device_; }

    std::optional<std::size_t> read(std::span<char> bytes) override {
        const bool isLast = isGone(device_);
        if (device_.bytesAvailable() == 0) return counted(isLast ? -1 : 0);
        return counted(device_.read(bytes.data(), static_cast<qint64>(bytes.size())));
    }
    std::optional<std::size_t> write(std::string_view bytes) override {
        if (isGone(device_)) return std::nullopt;
        const auto room = std::max<qint64>(0, kMostBuffered - device_.bytesToWrite());
        return counted(
            device_.write(bytes.data(), std::min(static_cast<qint64>(bytes.size()), room)));
    }

private:
    static std::optional<std::size_t> counted(qint64 count) {
        return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
    }

    Device device_;
};

std::unique_ptr<ByteStream> openSocket(const LinkAddress& address) {
    auto stream = std::make_unique<DeviceStream<QLocalSocket>>();
    QLocalSocket& socket = stream->device();
    socket.connectToServer(nameOf(address));
    if (socket.state() == QLocalSocket::ConnectedState) return stream;
    switch (socket.error()) {
        case QLocalSocket::ServerNotFoundError:
            fail(ENOENT, address);
        case QLocalSocket::ConnectionRefusedError:
            fail(ECONNREFUSED, address);
        case QLocalSocket::SocketAccessError:
            fail(EACCES, address);
        default:
            fail(EAGAIN, address);  // it would go on trying by itself
    }
}

void setLine(QSerialPort& port, const LineSettings& line) {
    constexpr auto kParities =
        std::to_array({QSerialPort::NoParity, QSerialPort::EvenParity, QSerialPort::OddParity,
                       QSerialPort::MarkParity, QSerialPort::SpaceParity});
    port.setBaudRate(static_cast<qint32>(line.speed));
    port.setDataBits(static_cast<QSerialPort::DataBits>(line.dataBits));
    port.setParity(kParities.at(static_cast<std::size_t>(line.parity)));
    port.setStopBits(static_cast<QSerialPort::StopBits>(line.stopBits));
}

// The port sets a speed in any case.
void restoreSpeed(const QSerialPort& port, termios settings, const LinkAddress& address) {
    ::cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    check(::tcsetattr(port.handle(), TCSANOW, &settings), address);
}

bool isSameFile(int one, int other) {
    struct stat first {};
    struct stat second {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

int reasonOf(const QSerialPort& port) {
    switch (port.error()) {
        case QSerialPort::PermissionError:
            return EBUSY;  // its lock: it could be opened
        case QSerialPort::UnsupportedOperationError:
            return ENOTSUP;
        default:
            return EIO;
    }
}

// Opened plainly first, it says why it can't be, and what its line was set to.
std::unique_ptr<ByteStream> openSerial(const LinkAddress& address) {
    const Script::FileDescriptor device(
        ::open(address.path.c_str(), O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    check(device.get(), address);
    termios settings{};
    check(::tcgetattr(device.get(), &settings), address);
    auto stream = std::make_unique<DeviceStream<QSerialPort>>();
    QSerialPort& port = stream->device();
    port.setPortName(nameOf(address));
    setLine(port, address.line.value_or(LineSettings{}));
    if (!port.open(QIODevice::ReadWrite)) fail(reasonOf(port), address);
    if (!isSameFile(device.get(), port.handle())) fail(ENOTTY, address);
    if (!address.line) restoreSpeed(port, settings, address);
    return stream;
}

}  // namespace

std::unique_ptr<ByteStream> openLink(const LinkAddress& address) {
    struct stat file {};
    check(::stat(address.path.c_str(), &file), address);
    if (S_ISSOCK(file.st_mode)) return openSocket(address);
    if (S_ISFIFO(file.st_mode)) return openPipe(address);
    if (S_ISCHR(file.st_mode)) return openSerial(address);
    fail(ENOTTY, address);
}

}  // namespace Orvo::Manager
