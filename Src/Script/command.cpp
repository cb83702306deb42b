#include "Script/command.h"

#include <algorithm>

#include "Script/command_table.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

// Commands that stand in one another: "on EVENT on EVENT …".
constexpr std::size_t kDeepestNesting = 64;

Action parseRest(Arguments& arguments) {
    const Word& name = arguments.take("command");
    const Command* command = findCommand(name.source);
    if (command == nullptr) {
        throw Misunderstood{"there is no command " + excerpt(name.source), name.offset};
    }
    if (!isAllowed(*command, arguments.grammar())) {
        throw Misunderstood{std::string(command->name) + " is not for here", name.offset};
    }
    Action action = command->parse(arguments);
    arguments.expectEnd();
    return action;
}

}  // namespace

Arguments::Arguments(std::span<const Word> words, const Grammar& grammar, std::size_t depth)
    : words_(words),
      grammar_(grammar),
      depth_(depth),
      end_(words.empty() ? 0 : words.back().offset + words.back().source.size()) {}

const Word& Arguments::take(std::string_view what) {
    if (words_.empty()) throw Misunderstood{std::string(what) + " is missing", end_};
    const Word& word = words_.front();
    words_ = words_.subspan(1);
    return word;
}

void Arguments::expectEnd() const {
    if (words_.empty()) return;
    const Word& word = words_.front();
    throw Misunderstood{"nothing takes " + excerpt(word.source), word.offset};
}

Action Arguments::takeCommand() {
    if (!words_.empty() && depth_ == kDeepestNesting) {
        throw Misunderstood{"this is nested too deeply", words_.front().offset};
    }
    Arguments rest(words_, grammar_, depth_ + 1);
    rest.end_ = end_;
    words_ = {};
    return parseRest(rest);
}

std::span<const Command> allCommands() { return kCommands; }

const Command* findCommand(std::string_view name) {
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(),
                                     [name](const Command& row) { return row.name == name; });
    return found != kCommands.end() ? found : nullptr;
}

bool isAllowed(const Command& command, const Grammar& grammar) {
    if (grammar.speaker == Grammar::Speaker::device && command.side != Side::host) return false;
    return command.place == Place::anywhere || command.place == grammar.place;
}

Action parse(std::span<const Word> words, const Grammar& grammar) {
    Arguments arguments(words, grammar);
    return parseRest(arguments);
}

}  // namespace Orvo::Script
