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
/// and the lines that come then are kept for another file, as many as `kMostUnwritten` bytes hold.
class RecordFile {
public:
    static constexpr std::size_t kMostUnwritten = std::size_t{64} << 20U;

    /// For its owner's eyes alone: it may hold passwords. Throws std::runtime_error.
    RecordFile(const std::string& path, Existing existing);

    /// Whole lines with their line breaks.
    void append(std::string_view lines);

    /// The file takes no more: there was no memory for a line, and no other file is to go on
    /// without it.
    void lose() noexcept { isWhole_ = false; }

    /// Why the file takes no more, if so: "FILE: REASON". One that is removed takes no more, which
    /// shows only when it is looked at here.
    const std::optional<std::string>& failure();

    /// Everything from the beginning on, and what comes next, is in another file from now on, or in
    /// the same again, if it can be; else std::runtime_error tells why, and nothing has changed.
    void moveTo(const std::string& path, Existing existing);

private:
    void flush();
    void giveUp(const std::string& reason);
    void copyTo(NewFile& file) const;
    void tryAgain();
    [[nodiscard]] bool isRemoved() const;
    [[nodiscard]] bool isAt(const std::string& path) const;

    std::string path_;
    FileDescriptor file_;
    std::size_t size_ = 0;   // of the full lines
    std::string unwritten_;  // lines
    bool isWhole_ = true;
    std::optional<std::string> failure_;
};

}  // namespace Orvo::Script
