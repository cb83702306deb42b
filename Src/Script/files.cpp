#include "Script/files.h"

#include <cerrno>
#include <cstddef>
#include <random>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Orvo::Script {
namespace {

[[noreturn]] void fail(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

[[noreturn]] void fail(const std::string& path, const char* reason) {
    throw std::runtime_error(path + ": " + reason);
}

int checked(int result, const std::string& path) {
    if (result < 0) fail(path);
    return result;
}

void expectRegular(const struct stat& status, const std::string& path) {
    if (S_ISREG(status.st_mode)) return;
    if (S_ISLNK(status.st_mode)) fail(path, "Symbolic links are not followed");
    if (!S_ISDIR(status.st_mode)) fail(path, "Not a regular file");
    errno = EISDIR;
    fail(path);
}

// Opening neither waits for the other end of a pipe nor takes a terminal over.
FileDescriptor open(const std::string& path, int mode, mode_t permissions = 0) {
    return FileDescriptor(
        checked(::open(path.c_str(), mode | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, permissions), path));
}

// Where a file system has no locks, nobody is kept out.
void lock(const FileDescriptor& file, const std::string& path) {
    if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
    fail(path, "A recording is being written to it");
}

// Locked; none when there is nothing.
FileDescriptor lockReplaced(const std::string& path, Existing existing) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return FileDescriptor();
    expectRegular(status, path);
    errno = EEXIST;
    if (existing == Existing::refused) fail(path);
    FileDescriptor file = open(path, O_RDONLY | O_NOFOLLOW);
    lock(file, path);
    return file;
}

std::string nameBeside(const std::string& path) {
    return path + '.' + std::to_string(std::random_device()());
}

mode_t permissionsFor(Readers readers) { return readers == Readers::owner ? 0600 : 0666; }

}  // namespace

FileDescriptor openRegular(const std::string& path) {
    FileDescriptor file = open(path, O_RDONLY);
    struct stat status {};
    checked(::fstat(file.get(), &status), path);
    expectRegular(status, path);
    return file;
}

std::size_t writeTo(const FileDescriptor& file, std::string_view bytes) {
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(file.get(), bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno != EINTR) break;
        if (count > 0) written += static_cast<std::size_t>(count);
    }
    return written;
}

std::size_t readFrom(const FileDescriptor& file, std::span<char> bytes) {
    ssize_t count = 0;
    do {
        count = ::read(file.get(), bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

NewFile::NewFile(const std::string& path, Existing existing, Readers readers)
    : path_(path), replaced_(lockReplaced(path, existing)) {
    const bool isBeside = replaced_.get() >= 0;
    const std::string name = isBeside ? nameBeside(path) : path;
    file_ = open(name, O_RDWR | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW, permissionsFor(readers));
    current_ = name;
    lock(file_, path);
}

NewFile::~NewFile() {
    if (file_.get() >= 0) ::unlink(current_.c_str());
}

void NewFile::write(std::string_view bytes) {
    if (writeTo(file_, bytes) != bytes.size()) fail(path_);
}

FileDescriptor NewFile::keep() {
    if (current_ != path_) checked(::rename(current_.c_str(), path_.c_str()), path_);
    return std::move(file_);
}

}  // namespace Orvo::Script
