#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Orvo::Script {

/// A file of the source tree that is written from the tables: a page, a header's
/// comments, or the panel as a widget has it.
struct DerivedFile {
    std::filesystem::path path;
    std::string text;
};

/// All of them, as they have to be in the tree with this root.
std::vector<DerivedFile> derivedFiles(const std::filesystem::path& root);

/// What is in a file now; empty when there is none.
std::string textIn(const std::filesystem::path& path);

}  // namespace Orvo::Script
