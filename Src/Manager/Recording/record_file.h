#pragma once

#include <string>
#include <string_view>

namespace Orvo::Manager {

/// A text file that is complete up to its last full line whatever becomes of the program.
class RecordFile {
public:
    /// What was in the file is gone. Throws std::system_error when it can't be opened.
    explicit RecordFile(const std::string& path);
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    /// Whole lines with their line breaks. A file that takes no more, for instance because the disk
    /// is full, is complained of once on standard error; what else is written to it is lost.
    void write(std::string_view lines);

private:
    void giveUp();

    std::string path_;
    int descriptor_;
};

}  // namespace Orvo::Manager
