#include "Reference/reference.h"

#include <fstream>
#include <iterator>
#include <span>

#include "Orvo/core/event_table.h"
#include "Reference/bindings.h"
#include "Reference/header_comments.h"
#include "Reference/reference_prose.h"
#include "Reference/widget_interface.h"
#include "Script/help.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

std::string cells(std::initializer_list<std::string_view> texts) {
    std::string row = "|";
    for (const std::string_view text : texts) {
        row += ' ';
        // A bar would end the cell.
        for (const char letter : text) row += letter == '|' ? "\\|" : std::string(1, letter);
        row += " |";
    }
    return row + '\n';
}

std::string heading(std::initializer_list<std::string_view> titles) {
    std::string rule = "|";
    for (std::size_t i = 0; i < titles.size(); ++i) rule += " --- |";
    return cells(titles) + rule + '\n';
}

std::string code(std::string_view text) { return '`' + std::string(text) + '`'; }

std::string_view placeText(Place place) {
    switch (place) {
        case Place::inMemory:
            return " (Without a window only.)";
        case Place::inWindow:
            return " (With a window only.)";
        default:
            return "";
    }
}

std::string commandsOf(Side side) {
    std::string text = heading({"command", "effect"});
    for (const Command& command : allCommands()) {
        if (command.side != side) continue;
        text += cells(
            {code(usage(command)), std::string(command.help).append(placeText(command.place))});
    }
    return text + '\n';
}

std::string parameterText(const Parameter& parameter) {
    return code(parameter.name) + ' ' + std::string(nameOf(parameter.type)) +
           (parameter.passing == Passing::byValue ? " by value" : "");
}

std::string parametersText(std::span<const Parameter> parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) {
        text += (text.empty() ? "" : ", ") + parameterText(parameter);
    }
    return text;
}

std::string memberRow(const Member& member) {
    const bool hasResult = member.result != ValueType::none;
    return cells({std::to_string(member.number), code(member.name), nameOf(member.kind),
                  code(dispatchIdText(member.dispatchId)), parametersText(member.parameters()),
                  hasResult ? nameOf(member.result) : ""});
}

std::string memberTable() {
    std::string text = heading({"number", "member", "kind", "dispatch id", "parameters", "result"});
    for (const Member& member : kMembers) text += memberRow(member);
    return text + '\n';
}

std::string memberContracts() {
    std::string text = heading({"member", "kind", "effect", "units and ranges", "errors"});
    for (const Member& member : kMembers) {
        const auto& [name, effect, values, errors] = contractOf(member);
        text += cells({code(name), nameOf(member.kind), effect, values, errors});
    }
    return text + '\n';
}

std::string eventTable() {
    std::string text =
        heading({"dispatch id", "event", "arguments", "raised when", "units and ranges"});
    for (const Event& event : kEvents) {
        text += cells({std::to_string(event.dispatchId), code(event.name),
                       parametersText(event.parameters()), contractOf(event).effect,
                       contractOf(event).values});
    }
    return text;
}

std::string scriptPage() {
    std::string text(kScriptIntroduction);
    text.append(kHostIntroduction).append(commandsOf(Side::host));
    text.append(kPersonIntroduction).append(commandsOf(Side::person));
    text.append(kLookingIntroduction).append(commandsOf(Side::looking));
    return text.append(kScriptEnd);
}

std::string interfacePage() {
    std::string text(kInterfaceIntroduction);
    text.append(kMemberRules).append("\n").append(memberTable()).append(memberContracts());
    text.append("## Events\n\n").append(kEventRules).append("\n");
    return text.append(eventTable());
}

}  // namespace

std::string textIn(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<DerivedFile> derivedFiles(const std::filesystem::path& root) {
    const auto members = root / "Src/Orvo/core/interface.h";
    const auto events = root / "Src/Orvo/core/events.h";
    return {{root / "Docs/panel-script.md", scriptPage()},
            {root / "Docs/interface.md", interfacePage()},
            {members, withMemberContracts(textIn(members))},
            {events, withEventContracts(textIn(events))},
            {root / "Src/Orvo/orvo_ids.h", cIds()},
            {root / "Src/Orvo/window/panel_interface.h", widgetInterfaceHeader()},
            {root / "Src/Orvo/window/panel_interface.cpp", widgetInterfaceSource()},
            {root / "Src/Python/orvo/_members.py", pythonMembers()}};
}

}  // namespace Orvo::Script
