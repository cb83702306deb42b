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

void expectRegular(const FileDescriptor& file, const std::string& path) {
    struct stat status {};
    checked(::fstat(file.get(), &status), path);
    expectRegular(status, path);
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

// However long the file's own name is, there is room for this one.
std::string nameBeside(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1) + ".orvo-" + std::to_string(std::random_device()());
}

mode_t permissionsFor(Readers readers) { return readers == Readers::owner ? 0600 : 0666; }

// A name ends at its first NUL for the system, and would be another's then.
const std::string& whole(const std::string& path) {
    errno = EINVAL;
    if (path.find('\0') != std::string::npos) fail(path);
    return path;
}

// Who may not read what is replaced may not read what replaces it.
void takePermissions(const FileDescriptor& file, const FileDescriptor& replaced,
                     const std::string& path) {
    struct stat before {};
    struct stat now {};
    checked(::fstat(replaced.get(), &before), path);
    checked(::fstat(file.get(), &now), path);
    checked(::fchmod(file.get(), now.st_mode & before.st_mode & 0777U), path);
}

}  // namespace

FileDescriptor openReadable(const std::string& path) {
    FileDescriptor file = open(path, O_RDONLY);
    checked(::fcntl(file.get(), F_SETFL, O_RDONLY), path);
    return file;
}

FileDescriptor openRegular(const std::string& path) {
    FileDescriptor file = open(path, O_RDONLY);
    expectRegular(file, path);
    return file;
}

FileDescriptor openToAppend(const std::string& path) {
    FileDescriptor file =
        open(path, O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW, permissionsFor(Readers::owner));
    expectRegular(file, path);
    lock(file, path);
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

std::size_t readAt(const FileDescriptor& file, std::size_t at, std::span<char> bytes) {
    std::size_t read = 0;
    while (read < bytes.size()) {
        const ssize_t count = ::pread(file.get(), bytes.data() + read, bytes.size() - read,
                                      static_cast<off_t>(at + read));
        if (count == 0 || (count < 0 && errno != EINTR)) break;
        if (count > 0) read += static_cast<std::size_t>(count);
    }
    return read;
}

NewFile::NewFile(const std::string& path, Existing existing, Readers readers)
    : path_(whole(path)), replaced_(lockReplaced(path, existing)) {
    std::string name = replaced_.get() >= 0 ? nameBeside(path) : path;
    constexpr int kFresh = O_RDWR | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    file_ = FileDescriptor(checked(::open(name.c_str(), kFresh, permissionsFor(readers)), path));
    current_ = std::move(name);
    if (replaced_.get() >= 0) takePermissions(file_, replaced_, path);
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
