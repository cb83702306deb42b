#include "Script/record_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "Script/bounds.h"

namespace Orvo::Script {
namespace {

constexpr std::size_t kPiece = 65536;

}  // namespace

RecordFile::RecordFile(const std::string& path, Existing existing)
    : path_(path), file_(NewFile(path, existing, Readers::owner).keep()) {}

void RecordFile::append(std::string_view lines) {
    if (isLost() || isChanged_) return;
    if (failure_ && unwritten_.size() + lines.size() > kMostKept) {
        loss_ = "No more can be kept";
        return;
    }
    unwritten_ += lines;
    if (!failure_) flush();
}

void RecordFile::flush() {
    if (writeTo(file_, unwritten_) != unwritten_.size()) {
        return giveUp(std::generic_category().message(errno));
    }
    size_ += unwritten_.size();
    unwritten_.clear();
}

// A line that is cut off would be taken for another.
void RecordFile::giveUp(const std::string& reason) {
    static_cast<void>(::ftruncate(file_.get(), static_cast<off_t>(size_)));
    failure_ = reason;
}

std::optional<std::string> RecordFile::failure() {
    if (!failure_) look();
    if (isLost()) return path_ + ": " + loss_;
    return failure_ ? std::optional(path_ + ": " + *failure_) : std::nullopt;
}

void RecordFile::look() {
    isChanged_ = !hasItsSize();
    if (isChanged_) {
        failure_ = "Another program has changed the file";
    } else if (!isAt(path_)) {
        failure_ = "The file was removed";
    }
}

bool RecordFile::hasItsSize() const {
    struct stat status {};
    return ::fstat(file_.get(), &status) == 0 && status.st_size == static_cast<off_t>(size_);
}

// Whatever the path is spelt like.
bool RecordFile::isAt(const std::string& path) const {
    struct stat there {};
    struct stat own {};
    return ::lstat(path.c_str(), &there) == 0 && ::fstat(file_.get(), &own) == 0 &&
           there.st_dev == own.st_dev && there.st_ino == own.st_ino;
}

void RecordFile::moveTo(const std::string& path, Existing existing) {
    if (isAt(path)) return tryAgain();
    NewFile file(path, existing, Readers::owner);
    copyTo(file);
    file.write(unwritten_);
    file_ = file.keep();
    path_ = path;
    size_ += unwritten_.size();
    unwritten_ = {};
    failure_.reset();
}

void RecordFile::tryAgain() {
    failure_.reset();
    flush();
    if (failure_) throw std::runtime_error(path_ + ": " + *failure_);
}

void RecordFile::copyTo(NewFile& file) const {
    std::array<char, kPiece> piece{};
    for (std::size_t at = 0; at < size_;) {
        const ssize_t count = ::pread(file_.get(), piece.data(), std::min(kPiece, size_ - at),
                                      static_cast<off_t>(at));
        if (count <= 0)
            throw std::system_error(count < 0 ? errno : EIO, std::generic_category(), path_);
        file.write({piece.data(), static_cast<std::size_t>(count)});
        at += static_cast<std::size_t>(count);
    }
}

}  // namespace Orvo::Script
