#include "Script/words.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "Orvo/values/error.h"
#include "Orvo/values/text.h"
#include "Script/literals.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kBareEnd = " \t\"[";
constexpr std::string_view kElementEnd = " \t]";
constexpr std::size_t kUnicodeDigits = 4;

bool isUtf8(std::string_view text) {
    const bool isAscii = std::all_of(text.begin(), text.end(), [](char c) { return c >= 0; });
    return isAscii || toUtf8(fromUtf8(text)) == text;
}

class Splitter {
public:
    Splitter(std::string_view line, std::size_t mostWords) : line_(line), mostWords_(mostWords) {}

    std::vector<Word> words() {
        std::vector<Word> words;
        for (skipBlanks(); !isAtEnd(); skipBlanks()) {
            if (words.size() == mostWords_) fail("there are too many words");
            words.push_back(peek() == '"' ? quoted() : bare());
            if (!isAtEnd() && kBlanks.find(peek()) == std::string_view::npos)
                fail("a blank is missing");
        }
        return words;
    }

private:
    [[noreturn]] void fail(std::string text) const { throw Misunderstood{std::move(text), at_}; }
    [[nodiscard]] bool isAtEnd() const { return at_ == line_.size(); }
    [[nodiscard]] char peek() const { return line_[at_]; }
    void skipBlanks() { at_ = std::min(line_.find_first_not_of(kBlanks, at_), line_.size()); }
    std::string_view takeUpTo(std::string_view ends) {
        const std::size_t start = at_;
        at_ = std::min(line_.find_first_of(ends, start), line_.size());
        return line_.substr(start, at_ - start);
    }

    Word bare() {
        const std::size_t start = at_;
        const std::string_view source = takeUpTo(kBareEnd);
        if (!isAtEnd() && peek() == '[') return array(start, source);
        return {.source = source, .offset = start};
    }

    Word quoted() {
        const std::size_t start = at_++;
        String text;
        for (;;) {
            text += fromUtf8(takeUpTo("\"\\"));
            if (isAtEnd()) fail("the String has no end");
            if (line_[at_++] == '"') break;
            text += escaped();
        }
        return {.form = Word::Form::quoted,
                .source = line_.substr(start, at_ - start),
                .offset = start,
                .text = std::move(text)};
    }

    char16_t escaped() {
        if (isAtEnd()) fail("the String has no end");
        switch (line_[at_++]) {
            case '"':
                return u'"';
            case '\\':
                return u'\\';
            case 'n':
                return u'\n';
            case 't':
                return u'\t';
            case 'u':
                return codeUnit();
            default:
                --at_;
                fail("no such escape");
        }
    }

    char16_t codeUnit() {
        const std::string_view digits = line_.substr(at_, kUnicodeDigits);
        std::uint16_t unit = 0;
        const auto [end, status] =
            std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
        if (end != digits.data() + kUnicodeDigits) fail("\\u takes four hexadecimal digits");
        at_ += kUnicodeDigits;
        return unit;
    }

    Word array(std::size_t start, std::string_view prefix) {
        const bool hasLower = !prefix.empty();
        const auto lower = hasLower ? lowerBound(start, prefix) : Long{1};
        ++at_;
        std::vector<Integer> elements = elementsUpToBracket();
        Word word{
            .form = Word::Form::array, .source = line_.substr(start, at_ - start), .offset = start};
        if (!hasLower && elements.empty()) return word;
        try {
            word.array = IntegerArray(lower, std::move(elements));
        } catch (const Error&) {
            throw Misunderstood{"the array's highest index is no Long", start};
        }
        return word;
    }

    static Long lowerBound(std::size_t start, std::string_view prefix) {
        const auto lower = wholeNumberOrBits<Long>(prefix.substr(0, prefix.size() - 1));
        if (!prefix.ends_with(':') || !lower) {
            throw Misunderstood{"what stands before [ is no lower bound", start};
        }
        return *lower;
    }

    std::vector<Integer> elementsUpToBracket() {
        std::vector<Integer> elements;
        for (skipBlanks(); !isAtEnd() && peek() != ']'; skipBlanks()) {
            const std::size_t start = at_;
            const auto element = wholeNumberOrBits<Integer>(takeUpTo(kElementEnd));
            if (!element) throw Misunderstood{"the element is no Integer", start};
            elements.push_back(*element);
        }
        if (isAtEnd()) fail("] is missing");
        ++at_;
        return elements;
    }

    std::string_view line_;
    std::size_t mostWords_;
    std::size_t at_ = 0;
};

}  // namespace

std::string_view firstWord(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line.substr(0, line.find_first_of(kBlanks));
}

std::vector<Word> split(std::string_view line, std::size_t most) {
    const std::size_t start = line.find_first_not_of(kBlanks);
    if (start == std::string_view::npos || line[start] == '#') return {};
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!isUtf8(line)) throw Misunderstood{"the line is not UTF-8", start};
    return Splitter(line, most).words();
}

}  // namespace Orvo::Script
