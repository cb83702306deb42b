#include "Script/completion.h"

#include <algorithm>

#include "Script/help.h"

namespace Orvo::Script {
namespace {

using Names = std::vector<std::string_view>;

Names namesOf(const WordKind& kind, const Grammar& grammar) {
    Names names = kind.names != nullptr ? kind.names(grammar) : Names();
    names.insert(names.end(), kind.choices.begin(), kind.choices.end());
    return names;
}

// What may follow the words of a command, which takes the sought word where it stands.
Names afterCommand(std::vector<Word> words, const Grammar& grammar) {
    words.push_back({.form = Word::Form::sought});
    try {
        parse(words, grammar);
    } catch (const Sought& sought) {
        return namesOf(sought.kind, grammar);
    } catch (const Misunderstood&) {
    }
    return {};
}

Names following(std::string_view before, const Grammar& grammar) {
    try {
        const auto words = split(before);
        const bool isForHelp = !words.empty() && words.front().source == kHelp;
        if (isForHelp) return words.size() == 1 ? afterCommand({}, grammar) : Names();
        Names names = afterCommand(words, grammar);
        if (words.empty()) names.push_back(kHelp);
        return names;
    } catch (const Misunderstood&) {
        return {};
    }
}

}  // namespace

std::vector<std::string> completions(std::string_view before, std::string_view typed,
                                     const Grammar& grammar) {
    Names names = following(before, grammar);
    std::erase_if(names, [typed](std::string_view name) { return !name.starts_with(typed); });
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return {names.begin(), names.end()};
}

}  // namespace Orvo::Script
