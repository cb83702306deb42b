#include "Script/completion.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Orvo/layout/layout.h"
#include "Script/argument_types.h"
#include "Script/command.h"
#include "Script/help.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

using Widgets::Kind;

std::vector<std::string_view> parts(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> found;
    for (std::size_t at = 0;
         (at = text.find_first_not_of(separators, at)) != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(separators, at), text.size());
        found.push_back(text.substr(at, end - at));
        at = end;
    }
    return found;
}

/// Keeps those candidates that begin with what has been typed.
class Offer {
public:
    Offer(std::string_view typed, const Grammar& grammar) : typed_(typed), grammar_(grammar) {}

    void add(std::string_view candidate) {
        if (candidate.starts_with(typed_)) offered_.emplace_back(candidate);
    }

    void add(const Command& command) {
        if (isAllowed(command, grammar_)) add(command.name);
    }

    std::vector<std::string> sorted() && {
        std::sort(offered_.begin(), offered_.end());
        offered_.erase(std::unique(offered_.begin(), offered_.end()), offered_.end());
        return std::move(offered_);
    }

private:
    std::string_view typed_;
    const Grammar& grammar_;
    std::vector<std::string> offered_;
};

void addCommands(Offer& offer) {
    for (const Command& command : allCommands()) offer.add(command);
}

// The command itself tells of which kind the member has to be.
void addMembers(Offer& offer, std::string_view command) {
    for (const Member& member : kMembers) {
        const bool isMethod = member.kind == MemberKind::method;
        if (command == (isMethod ? "call" : nameOf(member.kind)) || command == "id") {
            offer.add(member.name);
        }
    }
}

void addEvents(Offer& offer) {
    for (const Event& event : kEvents) offer.add(event.name);
}

void addWidgets(Offer& offer, std::optional<Kind> kind) {
    for (const Layout::Widget& widget : Layout::kWidgets) {
        if (!kind || widget.style.kind == *kind) offer.add(widget.name);
    }
}

// In a command's row, names of arguments are in capitals; other words stand for themselves.
void addArgument(Offer& offer, std::string_view command, std::string_view word) {
    if (word == "NAME") return addMembers(offer, command);
    if (word == "EVENT") return addEvents(offer);
    if (word == "WIDGET") return addWidgets(offer, std::nullopt);
    if (word == "SLIDER") return addWidgets(offer, Kind::slider);
    if (word == "COMBO") return addWidgets(offer, Kind::combo);
    if (word == "PICTURE") return addWidgets(offer, Kind::picture);
    if (word == Shown::kScreen || (word.front() >= 'a' && word.front() <= 'z')) offer.add(word);
}

void addNext(Offer& offer, std::span<const std::string_view> typed) {
    if (typed.empty()) return addCommands(offer);
    if (typed.front() == kHelp) return typed.size() == 1 ? addCommands(offer) : void();
    const Command* command = findCommand(typed.front());
    if (command == nullptr) return;
    const auto words = parts(command->words, " ");
    const std::size_t position = typed.size() - 1;
    for (std::size_t i = 0; i < words.size() && i <= position; ++i) {
        if (words[i] == "COMMAND") return addNext(offer, typed.subspan(1 + i));
    }
    if (position >= words.size()) return;
    for (const std::string_view choice : parts(words[position], "[|]")) {
        addArgument(offer, command->name, choice);
    }
}

}  // namespace

std::vector<std::string> completions(std::string_view before, std::string_view typed,
                                     const Grammar& grammar) {
    Offer offer(typed, grammar);
    const auto words = parts(before, " \t");
    if (words.empty()) offer.add(kHelp);
    addNext(offer, words);
    return std::move(offer).sorted();
}

}  // namespace Orvo::Script
