#include "Manager/Link/pipe_stream.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Script/file_descriptor.h"

namespace Orvo::Manager {
namespace {

using Script::FileDescriptor;

class PipeStream final : public ByteStream {
public:
    explicit PipeStream(FileDescriptor pipe) : pipe_(std::move(pipe)) {}

    std::optional<std::size_t> read(std::span<char> bytes) override {
        const ssize_t count = ::read(pipe_.get(), bytes.data(), bytes.size());
        hasHeard_ = hasHeard_ || count > 0;
        if (count > 0) return static_cast<std::size_t>(count);
        const bool isPassing = count < 0 && (errno == EAGAIN || errno == EINTR);
        const bool isEarly = count == 0 && !hasHeard_;
        return isPassing || isEarly ? std::optional<std::size_t>(0) : std::nullopt;
    }
    std::optional<std::size_t> write(std::string_view bytes) override { return bytes.size(); }

private:
    const FileDescriptor pipe_;
    bool hasHeard_ = false;
};

}  // namespace

std::unique_ptr<ByteStream> openPipe(const LinkAddress& address) {
    FileDescriptor pipe(::open(address.path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat found {};
    const bool isOpen = pipe.get() >= 0 && ::fstat(pipe.get(), &found) == 0;
    if (!isOpen || !S_ISFIFO(found.st_mode)) {
        throw std::system_error(isOpen ? ENOTTY : errno, std::generic_category(), address.path);
    }
    return std::make_unique<PipeStream>(std::move(pipe));
}

}  // namespace Orvo::Manager
