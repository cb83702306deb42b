#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

// What the targets of the fuzzer share. Each is a function of an input that ends the program when
// what it promises doesn't hold.
namespace Orvo::Fuzz {

void attackLateBinding(std::string_view input);
void attackFromWithin(std::string_view input);
void attackByScript(std::string_view input);
void attackOverLink(std::string_view input);
void attackRecording(std::string_view input);

struct Target {
    std::string_view name;
    void (*attack)(std::string_view input);
};

inline constexpr Target kTargets[] = {
    {"late-binding", attackLateBinding}, {"re-entrancy", attackFromWithin},
    {"panel-script", attackByScript},    {"link", attackOverLink},
    {"record-replay", attackRecording},
};

/// The target that ORVO_FUZZ names in the environment.
void attack(std::string_view input);

/// Ends the program with this complaint unless it holds; the fuzzer keeps the input then.
void expect(bool holds, std::string_view complaint, std::string_view evidence = {});

/// An input that is read from its beginning. Behind its end there are zeros.
class Bytes {
public:
    explicit Bytes(std::string_view input) : rest_(input) {}

    [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }
    std::string_view take(std::size_t count) {
        const auto taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    /// Of the machine's own byte order.
    template <class Number>
    Number number() {
        Number number{};
        const auto bytes = take(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }
    /// At most 65536.
    std::size_t below(std::size_t count) {
        return (count > 256 ? number<std::uint16_t>() : number<std::uint8_t>()) % count;
    }
    bool maybe() { return below(2) == 1; }
    template <class Choices>
    const auto& oneOf(const Choices& choices) {
        return std::data(choices)[below(std::size(choices))];
    }
    /// Up to and without an end mark, or all that is left.
    std::string_view takeUntil(char mark) {
        const auto taken = take(std::min(rest_.find(mark), rest_.size()));
        take(1);
        return taken;
    }

private:
    std::string_view rest_;
};

/// Each line, without its line break.
template <class Act>
void forLines(std::string_view text, const Act& act) {
    for (Bytes lines(text); !lines.isAtEnd();) act(lines.takeUntil('\n'));
}

/// Whether a line of an answer is the last of it.
inline bool isClosing(std::string_view answer) {
    return answer == "ok" || answer.starts_with("= ") || answer.starts_with("! ") ||
           answer.starts_with("? ");
}

}  // namespace Orvo::Fuzz
