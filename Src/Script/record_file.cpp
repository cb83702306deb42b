#include "Script/record_file.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Orvo::Script {
namespace {

// It may hold passwords.
constexpr mode_t kForTheOwner = 0600;

}  // namespace

RecordFile::RecordFile(const std::string& path)
    : path_(path),
      descriptor_(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kForTheOwner)) {
    if (descriptor_ < 0) throw std::system_error(errno, std::generic_category(), path);
    // A file that was there already keeps its mode otherwise; a device's is the system's.
    struct stat status {};
    if (::fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) {
        static_cast<void>(::fchmod(descriptor_, kForTheOwner));
    }
    isSeekable_ = ::lseek(descriptor_, 0, SEEK_CUR) >= 0;
}

RecordFile::~RecordFile() {
    begin({});
    if (descriptor_ >= 0) ::close(descriptor_);
}

void RecordFile::begin(std::string_view lines) {
    settle(entry_);
    entry_ = lines;
    if (isSeekable_) write(entry_, settled_);
}

void RecordFile::putBefore(std::string_view lines) {
    // Both in one go: the file is never without the entry.
    if (isSeekable_) write(std::string(lines) + entry_, settled_);
    settle(lines);
}

void RecordFile::putBehind(std::string_view lines) {
    if (isSeekable_) write(lines, settled_ + std::int64_t(entry_.size()));
    entry_ += lines;
}

void RecordFile::settle(std::string_view lines) {
    if (!isSeekable_) write(lines, settled_);
    settled_ += std::int64_t(lines.size());
}

void RecordFile::write(std::string_view lines, std::int64_t place) {
    while (descriptor_ >= 0 && !lines.empty()) {
        const ssize_t count = isSeekable_ ? ::pwrite(descriptor_, lines.data(), lines.size(), place)
                                          : ::write(descriptor_, lines.data(), lines.size());
        if (count >= 0) {
            lines.remove_prefix(static_cast<std::size_t>(count));
            place += count;
        } else if (errno != EINTR) {
            giveUp();
        }
    }
}

void RecordFile::giveUp() {
    const std::string reason = std::generic_category().message(errno);
    std::fprintf(stderr, "%s: %s: the recording ends here\n", path_.c_str(), reason.c_str());
    ::close(descriptor_);
    descriptor_ = -1;
}

}  // namespace Orvo::Script
