#pragma once

#include <utility>

#include <unistd.h>

namespace Orvo::Script {

/// Owns what a file was opened as.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1) : number_(number) {}
    ~FileDescriptor() {
        if (number_ >= 0) ::close(number_);
    }
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    /// Negative when it owns nothing.
    [[nodiscard]] int get() const { return number_; }

private:
    int number_;
};

}  // namespace Orvo::Script
