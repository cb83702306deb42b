#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "Manager/Link/line_splitter.h"
#include "Script/file_descriptor.h"

namespace Orvo::Manager {

/// How long a recorded session lasts, which is what it waits in all.
class ReplayLength {
public:
    /// A file that can't be read lasts no time.
    explicit ReplayLength(const std::filesystem::path& script);

    /// Looks at some more of the file.
    void look();
    /// Once all of it was looked at.
    [[nodiscard]] std::optional<std::chrono::milliseconds> total() const;

private:
    void add(const std::string& line);

    Script::FileDescriptor file_;
    LineSplitter lines_;
    std::chrono::milliseconds total_{0};
    bool isRead_ = false;
};

}  // namespace Orvo::Manager
