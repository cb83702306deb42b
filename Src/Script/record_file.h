#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Script/files.h"

namespace Orvo::Script {

/// A text file that only ever grows, by whole lines: what stood in it up to its last full line
/// stays there, whatever becomes of the program.
///
/// A file that takes no more, for instance because the disk is full, is left with its full lines,
/// and the lines that come then are kept for another file, up to `kMostKept` bytes. What comes
/// after that is lost, and so is what there was no memory for; then nothing follows any more.
class RecordFile {
public:
    /// For its owner's eyes alone: it may hold passwords. Throws std::runtime_error.
    RecordFile(const std::string& path, Existing existing);

    /// Whole lines with their line breaks.
    void append(std::string_view lines);

    /// There was no memory for a line, and nothing is to go on without it.
    void lose() noexcept { loss_ = "Out of memory"; }
    [[nodiscard]] bool isLost() const { return loss_ != nullptr; }

    /// Why the file takes no more, or takes what isn't kept any more, if so: "FILE: REASON". That
    /// it was removed or changed by others shows only when it is looked at here.
    std::optional<std::string> failure();

    /// Another program has changed what stood in it: there is nothing to go on with.
    [[nodiscard]] bool isChanged() const { return isChanged_; }

    /// Everything from the beginning on, and what comes next, is in another file from now on, or in
    /// the same again, if it can be; else std::runtime_error tells why, and nothing has changed.
    void moveTo(const std::string& path, Existing existing);

private:
    void flush();
    void giveUp(const std::string& reason);
    void copyTo(NewFile& file) const;
    void tryAgain();
    void look();
    [[nodiscard]] bool hasItsSize() const;
    [[nodiscard]] bool isAt(const std::string& path) const;

    std::string path_;
    FileDescriptor file_;
    std::size_t size_ = 0;        // of the full lines
    std::string unwritten_;       // lines
    const char* loss_ = nullptr;  // the reason
    bool isChanged_ = false;
    std::optional<std::string> failure_;  // the reason
};

}  // namespace Orvo::Script
