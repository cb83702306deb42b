#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "Orvo/values/integer_array.h"
#include "Orvo/values/types.h"

namespace Orvo::Script {

/// What is thrown for a line that is no command of the language, or that can't be carried out as
/// the panel stands. Nothing has been done then.
struct Misunderstood {
    std::string text;
    std::size_t offset = 0;  ///< in bytes from the start of the line
};

/// One word of a line.
struct Word {
    enum class Form : std::uint8_t {
        bare,
        quoted,
        array,
        sought,  ///< stands for the word that a completion is sought for
    };

    Form form = Form::bare;
    std::string_view source{};  ///< as it stands in the line
    std::size_t offset = 0;     ///< in bytes from the start of the line
    String text{};              ///< of a quoted word, its escapes replaced
    IntegerArray array{};
};

/// The words of a line: none when it is empty or a comment. They point into the line. Throws
/// Misunderstood, also when there are more than so many.
std::vector<Word> split(std::string_view line,
                        std::size_t most = std::numeric_limits<std::size_t>::max());

/// What a line begins with, up to the first blank.
std::string_view firstWord(std::string_view line);

}  // namespace Orvo::Script
