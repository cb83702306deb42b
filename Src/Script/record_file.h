#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Orvo::Script {

/// A text file that is complete up to its last full line whatever becomes of the program. Its last
/// entry can still get lines before and behind it. What can't be written twice, such as a pipe,
/// gets an entry when the next one begins.
///
/// All take whole lines with their line breaks. A file that takes no more, for instance because the
/// disk is full, is complained of once on standard error; what else is written to it is lost.
class RecordFile {
public:
    /// What was in the file is gone. Throws std::system_error when it can't be opened.
    explicit RecordFile(const std::string& path);
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    /// The entry so far is final; the next begins with these lines.
    void begin(std::string_view lines);
    void putBefore(std::string_view lines);
    void putBehind(std::string_view lines);

private:
    void settle(std::string_view lines);
    void write(std::string_view lines, std::int64_t place);
    void giveUp();

    std::string path_;
    int descriptor_;
    bool isSeekable_ = true;
    // Where the entry begins, and its lines.
    std::int64_t settled_ = 0;
    std::string entry_;
};

}  // namespace Orvo::Script
