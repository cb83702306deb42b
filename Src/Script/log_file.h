#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Script/file_descriptor.h"

namespace Orvo::Script {

/// A text that goes on growing, by whole lines, behind what programs before it left in the file. A
/// file that is full is kept beside the new one, with ".before" behind its name, in place of the
/// one before it: the disk holds twice `kMostInFile` bytes. While another program has the file, a
/// number goes before its ending.
///
/// What the disk doesn't take is kept in memory, and tried again with what comes next; without a
/// path nothing else happens. Beyond `kMostInFile` bytes the oldest lines go.
class LogFile {
public:
    static constexpr std::size_t kMostInFile = std::size_t{32} << 20U;

    /// For its owner's eyes alone.
    explicit LogFile(const std::string& path, std::size_t mostInFile = kMostInFile);

    /// Whole lines with their line breaks. `flush` brings them to the disk.
    void append(std::string_view lines);
    void flush();

    /// What was appended here, as far as it is there still.
    [[nodiscard]] std::string text() const;

    /// Why the disk took something not at once, if so: "FILE: REASON"; told once.
    std::optional<std::string> takeFailure() { return std::exchange(untold_, std::nullopt); }

private:
    // What stands in a file from `begin` to `end` is this log's.
    struct Part {
        FileDescriptor file;
        std::size_t begin = 0;
        std::size_t end = 0;

        [[nodiscard]] std::string text() const;
    };

    [[nodiscard]] static Part open(const std::string& path);
    void openFirst(const std::string& path);
    void beginAnother();
    void write();
    void fail(const std::string& reason);

    const std::size_t most_;
    std::string path_;
    Part before_;
    Part current_;
    std::string unwritten_;
    bool hasFailed_ = false;
    std::optional<std::string> untold_;
};

}  // namespace Orvo::Script
