#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "Script/file_descriptor.h"

// Files in places where others may have been before: what has the name already may be a link to
// something precious, a pipe that nobody reads, or a device. All throw std::runtime_error with the
// file and the reason, "FILE: REASON"; where the reason is the system's, std::system_error.
namespace Orvo::Script {

/// What is done about a file that has the name already.
enum class Existing : std::uint8_t { refused, overwritten };

/// Who may read a new file: its owner alone, or whoever usually may.
enum class Readers : std::uint8_t { owner, usual };

/// For reading, whatever it is. To open it waits for nobody, to read from it may.
FileDescriptor openReadable(const std::string& path);
/// For reading. A regular file, which may be behind a link; nothing is waited for.
FileDescriptor openRegular(const std::string& path);

/// For reading, and for writing behind what is there; made, for its owner's eyes alone, when it
/// isn't. Nobody else may have it so, or replace it, as long as it is open.
FileDescriptor openToAppend(const std::string& path);

/// A file that nobody had before. What it replaces stays as it is until `keep`. Nobody else may
/// replace it in turn as long as it is open.
class NewFile {
public:
    /// Only a regular file is replaced, and none that is being written as one of these.
    NewFile(const std::string& path, Existing existing, Readers readers);
    /// Unless it is kept, nothing has happened.
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Writes all of it.
    void write(std::string_view bytes);
    /// The file has its name from now on. What is written through the result stands behind what is
    /// there.
    FileDescriptor keep();

private:
    const std::string path_;
    std::string current_;  // its name at present
    FileDescriptor replaced_;
    FileDescriptor file_;
};

/// Writes as much as can be written, and says how much; errno tells why it isn't all.
std::size_t writeTo(const FileDescriptor& file, std::string_view bytes);
/// Reads what comes next, and says how much; nothing at the end, or when it can't be read.
std::size_t readFrom(const FileDescriptor& file, std::span<char> bytes);
/// Reads from a place on as much as there is room for, and says how much could be read.
std::size_t readAt(const FileDescriptor& file, std::size_t at, std::span<char> bytes);

}  // namespace Orvo::Script
