#pragma once

#include <algorithm>
#include <string_view>

namespace Orvo {

/// The letters A to Z are those without case; any other character is itself alone.
template <class Character>
Character lowerCase(Character letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<Character>(letter + ('a' - 'A')) : letter;
}

template <class Character>
bool equalIgnoringCase(std::basic_string_view<Character> a, std::basic_string_view<Character> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](Character x, Character y) { return lowerCase(x) == lowerCase(y); });
}

}  // namespace Orvo
