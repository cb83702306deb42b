#pragma once

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace Orvo::Tests {

inline std::string textIn(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// Compares a text with the one that a file keeps. With ORVO_ACCEPT=1 in the environment the file
/// keeps it from now on; a review then sees what a change brought about.
inline void expectAsKept(const std::string& path, const std::string& actual) {
    if (std::getenv("ORVO_ACCEPT") != nullptr) std::ofstream(path, std::ios::binary) << actual;
    EXPECT_EQ(actual, textIn(path));
}

}  // namespace Orvo::Tests
