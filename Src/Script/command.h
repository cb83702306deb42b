#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "Script/words.h"

// Commands as the language's table has them, and how a line becomes one.
namespace Orvo::Script {

class Session;

/// A command with its arguments, to be carried out now or when an event is raised: its closing
/// line. Throws Error for "!", and Misunderstood for "?".
using Action = std::function<std::string(Session&)>;

/// Whose commands these are.
enum class Side : std::uint8_t { host, person, looking };

/// Which programs know a command.
enum class Place : std::uint8_t { anywhere, inMemory, inWindow };

/// What may be said where a line comes from.
struct Grammar {
    enum class Speaker : std::uint8_t {
        anyone,
        device,  ///< at the other end of a link: the host's side only
    };
    Speaker speaker = Speaker::anyone;
    Place place = Place::inMemory;
};

/// The words of a command that have not been taken yet.
class Arguments {
public:
    Arguments(std::span<const Word> words, const Grammar& grammar, std::size_t depth = 0);

    /// The next word, which is a `what`. Throws Misunderstood when there is none.
    const Word& take(std::string_view what);
    [[nodiscard]] bool isAtEnd() const { return words_.empty(); }
    [[nodiscard]] bool isNext(std::string_view word) const {
        return !words_.empty() && words_.front().source == word;
    }
    void expectEnd() const;

    /// The rest as a command of its own.
    Action takeCommand();

    [[nodiscard]] const Grammar& grammar() const { return grammar_; }

private:
    std::span<const Word> words_;
    const Grammar& grammar_;
    std::size_t depth_;
    std::size_t end_ = 0;  // offset behind the last word
};

/// One command of the language.
struct Command {
    std::string_view name;
    Side side = Side::host;
    std::string_view words;  ///< what follows the name
    std::string_view help;
    Action (*parse)(Arguments& arguments) = nullptr;
    Place place = Place::anywhere;
};

/// All commands, in the order of the reference page.
std::span<const Command> allCommands();

/// Null when there is none.
const Command* findCommand(std::string_view name);

bool isAllowed(const Command& command, const Grammar& grammar);

/// Takes all words. Throws Misunderstood.
Action parse(std::span<const Word> words, const Grammar& grammar);

}  // namespace Orvo::Script
