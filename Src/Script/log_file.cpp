#include "Script/log_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "Script/files.h"

namespace Orvo::Script {
namespace {

constexpr int kMostPrograms = 9;

// "messages.txt" becomes "messages-2.txt".
std::string numbered(const std::string& path, int number) {
    if (number == 1) return path;
    const std::filesystem::path whole(path);
    const auto name = whole.stem().string() + '-' + std::to_string(number);
    return whole.parent_path() / (name + whole.extension().string());
}

}  // namespace

LogFile::LogFile(const std::string& path, std::size_t mostInFile) : most_(mostInFile) {
    if (!path.empty()) openFirst(path);
}

void LogFile::openFirst(const std::string& path) {
    std::optional<std::string> reason;
    for (int number = 1; number <= kMostPrograms; ++number) {
        try {
            path_ = numbered(path, number);
            current_ = open(path_);
            return;
        } catch (const std::runtime_error& failure) {
            if (!reason) reason = failure.what();
        }
    }
    path_.clear();
    fail(*reason);
}

LogFile::Part LogFile::open(const std::string& path) {
    Part part{.file = openToAppend(path)};
    struct stat status {};
    if (::fstat(part.file.get(), &status) == 0) part.begin = std::size_t(status.st_size);
    part.end = part.begin;
    return part;
}

void LogFile::append(std::string_view lines) {
    unwritten_ += lines;
    if (unwritten_.size() <= most_) return;
    const auto end = unwritten_.find('\n', unwritten_.size() - most_ / 2);
    unwritten_.erase(0, end == std::string::npos ? end : end + 1);
}

void LogFile::flush() {
    if (unwritten_.empty() || path_.empty()) return;
    try {
        if (current_.end + unwritten_.size() > most_) beginAnother();
        write();
    } catch (const std::runtime_error& failure) {
        fail(failure.what());
    }
}

void LogFile::beginAnother() {
    std::filesystem::rename(path_, path_ + ".before");
    Part next = open(path_);
    before_ = std::exchange(current_, std::move(next));
}

// A line that is cut off would stand before another.
void LogFile::write() {
    if (writeTo(current_.file, unwritten_) == unwritten_.size()) {
        current_.end += unwritten_.size();
        return unwritten_.clear();
    }
    const int reason = errno;
    static_cast<void>(::ftruncate(current_.file.get(), static_cast<off_t>(current_.end)));
    throw std::system_error(reason, std::generic_category(), path_);
}

void LogFile::fail(const std::string& reason) {
    if (!std::exchange(hasFailed_, true)) untold_ = reason;
}

std::string LogFile::Part::text() const {
    std::string text(end - begin, '\0');
    return text.substr(0, readAt(file, begin, text));
}

std::string LogFile::text() const { return before_.text() + current_.text() + unwritten_; }

}  // namespace Orvo::Script
