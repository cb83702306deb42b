#include "Script/command.h"

#include <algorithm>

#include "Script/bounds.h"
#include "Script/command_table.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

using Verb = Runtime::Deed::Verb;

// Commands that stand in one another: "on EVENT on EVENT …".
constexpr std::size_t kDeepestNesting = 64;

std::vector<std::string_view> commandNames(const Grammar& grammar) {
    std::vector<std::string_view> names;
    for (const Command& command : kCommands) {
        if (isAllowed(command, grammar)) names.push_back(command.name);
    }
    return names;
}

constexpr WordKind kName{.name = "command", .names = commandNames};

ParsedCommand parseRest(Arguments& arguments) {
    const Word& name = arguments.take(kName);
    const Command* command = findCommand(name.source);
    if (command == nullptr) {
        throw Misunderstood{"there is no command " + excerpt(name.source), name.offset};
    }
    if (!isAllowed(*command, arguments.grammar())) {
        throw Misunderstood{std::string(command->name) + " is not for here", name.offset};
    }
    ParsedCommand parsed = command->parse(arguments);
    arguments.expectEnd();
    return parsed;
}

constexpr const Command* commandWith(Verb verb) {
    return std::find_if(kCommands.begin(), kCommands.end(),
                        [verb](const Command& row) { return row.verb == verb; });
}

constexpr bool isEveryDeedACommand() {
    for (int verb = 0; verb <= int(Verb::tab); ++verb) {
        const bool isCommand = commandWith(Verb(verb)) != kCommands.end();
        if (!isCommand && Verb(verb) != Verb::move) return false;
    }
    return true;
}
static_assert(isEveryDeedACommand());

}  // namespace

std::string textOf(const WordKind& kind) {
    std::string text(kind.name);
    for (const std::string_view choice : kind.choices) {
        text.append(text.empty() ? "" : "|").append(choice);
    }
    return text;
}

Arguments::Arguments(std::span<const Word> words, const Grammar& grammar, std::size_t depth)
    : words_(words),
      grammar_(grammar),
      depth_(depth),
      end_(words.empty() ? 0 : words.back().offset + words.back().source.size()) {}

const Word& Arguments::take(const WordKind& kind) {
    if (words_.empty()) throw Misunderstood{textOf(kind) + " is missing", end_};
    const Word& word = words_.front();
    if (word.form == Word::Form::sought) throw Sought{kind};
    words_ = words_.subspan(1);
    return word;
}

void Arguments::expectEnd() const {
    if (words_.empty()) return;
    const Word& word = words_.front();
    throw Misunderstood{"nothing takes " + excerpt(word.source), word.offset};
}

ParsedCommand Arguments::takeCommand() {
    if (!words_.empty() && depth_ == kDeepestNesting) {
        throw Misunderstood{"this is nested too deeply", words_.front().offset};
    }
    Arguments rest(words_, grammar_, depth_ + 1);
    rest.end_ = end_;
    const std::size_t length = words_.empty() ? 0 : end_ - words_.front().offset;
    words_ = {};
    ParsedCommand command = parseRest(rest);
    command.size = bytesToKeep(length);
    return command;
}

std::span<const Command> allCommands() { return kCommands; }

const Command* findCommand(std::string_view name) {
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(),
                                     [name](const Command& row) { return row.name == name; });
    return found != kCommands.end() ? found : nullptr;
}

bool isAllowed(const Command& command, const Grammar& grammar) {
    if (grammar.speaker == Grammar::Speaker::device && command.side != Side::host) return false;
    if (grammar.speaker == Grammar::Speaker::recording && command.target == Target::files) {
        return false;
    }
    return command.place == Place::anywhere || command.place == grammar.place;
}

bool isForTheMidst(std::string_view line) {
    const std::string_view name = firstWord(line);
    if (name.empty() || name.starts_with('#')) return true;
    const Command* command = findCommand(name);
    return command != nullptr && command->target == Target::queue;
}

ParsedCommand parse(std::span<const Word> words, const Grammar& grammar) {
    Arguments arguments(words, grammar);
    return parseRest(arguments);
}

std::string commandText(const Runtime::Deed& deed) {
    const Command* command = commandWith(deed.verb == Verb::move ? Verb::slide : deed.verb);
    return std::string(command->name) + command->wordsOf(deed);
}

}  // namespace Orvo::Script
