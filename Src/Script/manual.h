#pragma once

#include <string>
#include <string_view>
#include <vector>

// What a program says of itself, in the forms that systems keep: a manual page, and how shells
// complete its command line.
namespace Orvo::Script {

struct ManualOption {
    std::vector<std::string> names;  ///< "-h", "--help"; the last one is the long one
    std::string value;               ///< what it takes; "FILE" or "PATH" is a file, "" nothing
    std::string text;
};

struct ManualKey {
    std::string group;
    std::string what;
    std::string keys;
};

struct Manual {
    std::string program;
    std::string purpose;                   ///< without a capital and a full stop
    std::string operands;                  ///< "[FILE]", or nothing
    std::vector<std::string> description;  ///< a paragraph each
    std::vector<ManualOption> options;
    std::vector<ManualKey> keys;
    std::vector<std::string> seeAlso;  ///< "name(section)"
};

/// What `--generate` takes.
inline constexpr auto kManualForms = "man, bash, zsh or fish";

/// The manual in one of these forms; an empty text for any other.
std::string manualAs(std::string_view form, const Manual& manual);

}  // namespace Orvo::Script
