#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Orvo::Tests {

/// A directory that is there as long as this is.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string name = std::filesystem::temp_directory_path() / "orvo-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no directory " + name);
        path_ = name;
    }
    ~TemporaryDirectory() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Makes "a/b/" a directory, "a/b = text" a file and "a/b -> c/d" a link to what has the path
    /// c/d here, whether it is there or not; each with the directories above it.
    void add(std::initializer_list<std::string> entries) const {
        for (const std::string& entry : entries) add(entry);
    }

private:
    void add(const std::string& entry) const {
        const auto file = entry.find(" = ");
        const auto link = entry.find(" -> ");
        const auto path = path_ / entry.substr(0, std::min(file, link));
        std::filesystem::create_directories(path.parent_path());
        if (file != std::string::npos) {
            std::ofstream(path) << entry.substr(file + 3);
        } else if (link != std::string::npos) {
            std::filesystem::create_symlink(path_ / entry.substr(link + 4), path);
        }
    }

    std::filesystem::path path_;
};

}  // namespace Orvo::Tests
