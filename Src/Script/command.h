#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Orvo/store/deed.h"
#include "Script/words.h"

// Commands as the language's table has them, and how a line becomes one.
namespace Orvo::Script {

class Session;

/// A command with its arguments, to be carried out now or when an event is raised.
struct ParsedCommand {
    /// Its closing line. Throws Error for "!", and Misunderstood for "?".
    std::function<std::string(Session&)> carryOut;
    /// What it takes to keep it, in bytes; only of a command within a command.
    std::size_t size = 0;
};

/// Whose commands these are.
enum class Side : std::uint8_t { host, person, looking };

/// Which programs know a command.
enum class Place : std::uint8_t { anywhere, inMemory, inWindow };

/// What a command is carried out on, or that it is queued for the midst of another.
enum class Target : std::uint8_t { panel, queue, files };

/// What may be said where a line comes from.
struct Grammar {
    enum class Speaker : std::uint8_t {
        anyone,
        device,     ///< at the other end of a link: the host's side only
        recording,  ///< of a session; it may not write files
    };
    Speaker speaker = Speaker::anyone;
    Place place = Place::inMemory;
};

/// What may stand in one place of a command.
struct WordKind {
    enum class Presence : std::uint8_t { required, optional };

    std::string_view name{};                      ///< what it is called: "WIDGET"
    std::span<const std::string_view> choices{};  ///< words that stand there as they are
    Presence presence = Presence::required;
    /// The names that may stand there; null when there is no list of them.
    std::vector<std::string_view> (*names)(const Grammar& grammar) = nullptr;
};

/// "WIDGET|Screen".
std::string textOf(const WordKind& kind);

/// What is thrown when the sought word is taken: what may stand in its place.
struct Sought {
    WordKind kind;
};

/// The words of a command that have not been taken yet.
class Arguments {
public:
    Arguments(std::span<const Word> words, const Grammar& grammar, std::size_t depth = 0);

    /// The next word. Throws Misunderstood when there is none.
    const Word& take(const WordKind& kind);
    [[nodiscard]] bool isAtEnd() const { return words_.empty(); }
    [[nodiscard]] bool isNext(std::string_view word) const {
        return !words_.empty() && words_.front().source == word;
    }
    void expectEnd() const;

    /// The rest as a command of its own.
    ParsedCommand takeCommand();

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
    std::span<const WordKind> words;  ///< what follows the name
    std::string_view help;
    ParsedCommand (*parse)(Arguments& arguments) = nullptr;
    Place place = Place::anywhere;
    Target target = Target::panel;

    // Of a command that is a deed.
    std::optional<Runtime::Deed::Verb> verb{};
    std::string (*wordsOf)(const Runtime::Deed& deed) = nullptr;
};

/// All commands, in the order of the reference page.
std::span<const Command> allCommands();

/// Null when there is none.
const Command* findCommand(std::string_view name);

bool isAllowed(const Command& command, const Grammar& grammar);

/// Whether the line only queues something, or is passed over.
bool isForTheMidst(std::string_view line);

/// Takes all words. Throws Misunderstood.
ParsedCommand parse(std::span<const Word> words, const Grammar& grammar);

/// The command that does the same. A held slider that is moved is let go of.
std::string commandText(const Runtime::Deed& deed);

}  // namespace Orvo::Script
